#pragma once

#include "model/EVM.h"

#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace tarsil {

/// Opens the files of a list, and receives what becomes of each. Indices are counted from 0.
class ListOpener
{
public:
    virtual ~ListOpener();

    /// Whether a file is to be opened at all.
    virtual bool isWanted(std::size_t index) const = 0;

    /// Reads an evolution, which the opener owns. Any exception is passed to `cannotOpen`.
    virtual EVM& open(const std::string& path) = 0;

    /// The file of that path is open already.
    virtual void foundOpen(const EVM& evolution) = 0;

    /// There is no such file. The path of an entry that the list lacks is empty.
    virtual void isMissing(std::size_t index, const std::string& path) = 0;

    virtual void cannotOpen(std::size_t index, const std::exception_ptr& error) = 0;

    /// So many entries of the list are dealt with.
    virtual void isDone(std::size_t count) = 0;
};

/// Opens the files of a list in its order. One that is open already (in `open` or earlier in the
/// list, also by way of another path) is not opened again. Returns the evolution of each path, null
/// where there is none.
std::vector<EVM*> openListed(const OwnedEvolutions& open, const std::vector<std::string>& paths,
                             ListOpener& opener);

} // namespace tarsil
