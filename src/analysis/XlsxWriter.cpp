#include "analysis/XlsxWriter.h"

#include "analysis/XlsxParts.h"
#include "analysis/ZipArchive.h"
#include "base/files/AtomicFile.h"

namespace tarsil {

/// The target is opened first: what is wrong with it is found before any work.
void writeXlsx(std::span<const Sheet* const> sheets, std::string_view path)
{
    AtomicFile file(path);
    file.write(zipArchive(xlsxParts(sheets, path), "SheetWriter"));
    file.commit();
}

} // namespace tarsil
