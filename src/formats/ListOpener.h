// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"

#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace tarsil {

/// Opens the files of a list and receives the result for each. Indices are counted from 0.
class ListOpener
{
public:
    virtual ~ListOpener();

    /// Whether to open the file of an entry.
    virtual bool isWanted(std::size_t index) const = 0;

    /// Reads an evolution, which the opener owns. Exceptions are passed to `cannotOpen`.
    virtual EVM& open(const std::string& path) = 0;

    /// The file is already open.
    virtual void foundOpen(const EVM& evolution) = 0;

    /// The file does not exist. The path is empty for an entry without a path.
    virtual void isMissing(std::size_t index, const std::string& path) = 0;

    virtual void cannotOpen(std::size_t index, const std::exception_ptr& error) = 0;

    /// `count` entries of the list are finished. Returns whether to go on.
    virtual bool isDone(std::size_t count) = 0;
};

/// Opens the files of a list in order. A file that is already open (in `open`, or from an earlier
/// entry, also under another path) is not opened again. Returns the evolution of each path, null if
/// there is none. When the opener stops, the remaining files are not opened.
std::vector<EVM*> openListed(const OwnedEvolutions& open, const std::vector<std::string>& paths,
                             ListOpener& opener);

} // namespace tarsil
