// SPDX-License-Identifier: Apache-2.0
#include "analysis/XlsxWriter.h"

#include "analysis/XlsxParts.h"
#include "analysis/ZipArchive.h"
#include "base/files/AtomicFile.h"

#include <cstddef>

namespace tarsil {

/// Opens the target first, so that an error with it is found before any work.
bool writeXlsx(std::span<const Sheet* const> sheets, std::string_view path,
               const Progress& progress)
{
    constexpr std::size_t parts = 2;
    AtomicFile file(path);
    const auto content = xlsxParts(sheets, path, partOf(progress, 0, parts));
    if (!content)
        return false;
    const auto bytes = zipArchive(*content, "SheetWriter", partOf(progress, 1, parts));
    if (!bytes)
        return false;
    file.write(*bytes);
    file.commit();
    return true;
}

} // namespace tarsil
