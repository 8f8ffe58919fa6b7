// SPDX-License-Identifier: Apache-2.0
#include "analysis/XlsxWriter.h"

#include "analysis/XlsxParts.h"
#include "analysis/ZipArchive.h"
#include "base/files/AtomicFile.h"

namespace tarsil {

/// Opens the target first, so that an error with it is found before any work.
void writeXlsx(std::span<const Sheet* const> sheets, std::string_view path)
{
    AtomicFile file(path);
    file.write(zipArchive(xlsxParts(sheets, path), "SheetWriter"));
    file.commit();
}

} // namespace tarsil
