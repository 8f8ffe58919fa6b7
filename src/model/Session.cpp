#include "model/Session.h"

#include "base/files/PathNames.h"

namespace tarsil {

EVM& Session::open(std::string_view path)
{
    auto evolution = std::make_unique<EVM>();
    FilePath file = resolvePath(path);
    evolution->Folder = std::move(file.folder);
    evolution->FileName = std::move(file.name);
    evolution->Contruct();
    evolutions.push_back(std::move(evolution));
    return *evolutions.back();
}

} // namespace tarsil
