// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"

#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarsil::batch {

/// A failure that is reported and ends the program with status 1.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A run of the program: its output streams and the files that it has opened.
class BatchRun
{
public:
    BatchRun(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) { }

    std::ostream& out() { return m_out; }

    /// Prints "tarsil-batch: " and the message on standard error, as one line (`printableText`).
    void complain(std::string_view message);

    /// Reads a modal evolution. Errors: those of `Contruct`; Failure for a name that selects no
    /// format.
    EVM& open(const std::string& path);

    /// Replaces stored paths in a message by the names that the user gave.
    std::string readable(std::string message) const;

private:
    std::ostream& m_out;
    std::ostream& m_err;
    OwnedEvolutions m_evolutions;
    std::vector<std::pair<std::string, std::string>> m_names; ///< stored path, name as given
};

/// Raises Failure when the output is one of the input files, by whatever name.
void refuseOutputOverInput(const std::string& output, const std::string& input);

/// The legends of an evolution on one line, or its file name when it has none.
std::string caseTextOf(const EVM& evolution);

} // namespace tarsil::batch
