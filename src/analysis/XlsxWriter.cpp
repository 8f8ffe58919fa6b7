#include "analysis/XlsxWriter.h"

#include "analysis/Sheet.h"
#include "runtime/AtomicFile.h"
#include "runtime/MappedFile.h"
#include "runtime/PathNames.h"
#include "runtime/RunTimeError.h"
#include "runtime/TextCodec.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <filesystem>
#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <utility>

namespace tarsil {

namespace {

#if __has_include(<unistd.h>)
/// Numbers with a decimal point in this thread for as long as it lives: the spreadsheet library
/// prints them by the locale, where a comma would spoil the file.
class PointLocale
{
public:
    PointLocale() : m_point(newlocale(LC_ALL_MASK, "C", nullptr)), m_before(uselocale(m_point)) { }
    ~PointLocale()
    {
        uselocale(m_before);
        freelocale(m_point);
    }
    PointLocale(const PointLocale&) = delete;
    PointLocale& operator=(const PointLocale&) = delete;

private:
    locale_t m_point;
    locale_t m_before;
};
#else
/// The same for the whole process, where a thread has no locale of its own.
class PointLocale
{
public:
    PointLocale() : m_before(std::setlocale(LC_NUMERIC, nullptr))
    {
        std::setlocale(LC_NUMERIC, "C");
    }
    ~PointLocale() { std::setlocale(LC_NUMERIC, m_before.c_str()); }
    PointLocale(const PointLocale&) = delete;
    PointLocale& operator=(const PointLocale&) = delete;

private:
    std::string m_before;
};
#endif

/// The file that the spreadsheet library writes; removed at the end, whatever happens.
class ScratchFile
{
public:
    explicit ScratchFile(std::filesystem::path path) : m_path(std::move(path)) { }
    ~ScratchFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    std::string name() const { return m_path.string(); }
    std::string text() const { return pathText(m_path); }

private:
    std::filesystem::path m_path;
};

/// Puts the cells of a sheet into a workbook of the spreadsheet library.
class Workbook
{
public:
    Workbook(const Sheet& sheet, const std::string& scratch, std::string_view path);

    void fill();

    /// Writes the scratch file.
    void close();

private:
    void describe();
    void writeCell(std::size_t row, std::size_t column);
    void setWidth(std::size_t column);
    void check(lxw_error error) const;

    const Sheet& m_sheet;
    std::string_view m_path;
    std::unique_ptr<lxw_workbook, void (*)(lxw_workbook*)> m_book;
    lxw_worksheet* m_page = nullptr;
    lxw_format* m_heading = nullptr;
};

Workbook::Workbook(const Sheet& sheet, const std::string& scratch, std::string_view path)
    : m_sheet(sheet), m_path(path), m_book(workbook_new(scratch.c_str()), lxw_workbook_free)
{
    m_page = m_book ? workbook_add_worksheet(m_book.get(), "Flutter") : nullptr;
    m_heading = m_book ? workbook_add_format(m_book.get()) : nullptr;
    if (m_page == nullptr || m_heading == nullptr)
        check(LXW_ERROR_MEMORY_MALLOC_FAILED);
}

void Workbook::fill()
{
    describe();
    format_set_bold(m_heading);
    worksheet_freeze_panes(m_page, 1, 0);
    for (std::size_t column = 1; column <= m_sheet.columnCount(); ++column)
        setWidth(column);
    for (std::size_t row = 1; row <= m_sheet.rowCount(); ++row) {
        for (std::size_t column = 1; column <= m_sheet.columnCount(); ++column)
            writeCell(row, column);
    }
}

void Workbook::close()
{
    errno = 0;
    check(workbook_close(m_book.release()));
}

void Workbook::describe()
{
    std::string title = "Flutter speeds";
    lxw_doc_properties properties {};
    properties.title = title.data();
    // A date of its own would make two equal reports differ: 1980-01-01, as on the parts inside.
    properties.created = 315532800;
    check(workbook_set_properties(m_book.get(), &properties));
}

void Workbook::writeCell(std::size_t row, std::size_t column)
{
    if (row > LXW_ROW_MAX || column > LXW_COL_MAX)
        check(LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE);
    const auto line = static_cast<lxw_row_t>(row - 1);
    const auto place = static_cast<lxw_col_t>(column - 1);
    lxw_format* const format = row == 1 ? m_heading : nullptr;
    const Sheet::Cell& cell = m_sheet.cell(row, column);
    if (const auto* number = std::get_if<double>(&cell))
        check(worksheet_write_number(m_page, line, place, *number, format));
    else if (const auto* text = std::get_if<std::string>(&cell); text != nullptr && !text->empty())
        check(worksheet_write_string(m_page, line, place, decodeText(*text).c_str(), format));
}

/// Wide enough for the content, as long as it is no novel.
void Workbook::setWidth(std::size_t column)
{
    constexpr std::size_t narrowest = 8;
    constexpr std::size_t widest = 60;
    constexpr std::size_t widestNumber = 12; // a spreadsheet rounds what it shows
    std::size_t width = narrowest;
    for (std::size_t row = 1; row <= m_sheet.rowCount(); ++row) {
        const Sheet::Cell& cell = m_sheet.cell(row, column);
        std::size_t length = Sheet::textOf(cell).size();
        if (std::holds_alternative<double>(cell))
            length = std::min(length, widestNumber);
        width = std::max(width, std::min(length, widest));
    }
    const auto place = static_cast<lxw_col_t>(std::min<std::size_t>(column - 1, LXW_COL_MAX - 1));
    constexpr double margin = 2;
    check(worksheet_set_column(m_page, place, place, static_cast<double>(width) + margin, nullptr));
}

/// Raises the run-time error of what the library reports; `errno` tells why a file failed.
void Workbook::check(lxw_error error) const
{
    switch (error) {
    case LXW_NO_ERROR:
        return;
    case LXW_ERROR_MEMORY_MALLOC_FAILED:
        throw std::bad_alloc();
    case LXW_ERROR_CREATING_XLSX_FILE:
    case LXW_ERROR_CREATING_TMPFILE:
    case LXW_ERROR_READING_TMPFILE:
    case LXW_ERROR_ZIP_FILE_OPERATION:
    case LXW_ERROR_ZIP_PARAMETER_ERROR:
    case LXW_ERROR_ZIP_BAD_ZIP_FILE:
    case LXW_ERROR_ZIP_INTERNAL_ERROR:
    case LXW_ERROR_ZIP_FILE_ADD:
    case LXW_ERROR_ZIP_CLOSE:
        throw fileError(errno != 0 ? errno : EIO, "SheetWriter", m_path);
    default:
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "SheetWriter",
                           std::string(m_path) + ": " + lxw_strerror(error));
    }
}

} // namespace

/// The library knows files only, so it writes beside the target, and its bytes go the way of all
/// files from there. The target is opened first: what is wrong with it is found before any work.
void writeXlsx(const Sheet& sheet, std::string_view path)
{
    const PointLocale point;
    AtomicFile file(path);
    const ScratchFile scratch(temporaryName(nativePath(path)));
    Workbook workbook(sheet, scratch.name(), path);
    workbook.fill();
    workbook.close();
    file.write(MappedFile(scratch.text()).bytes());
    file.commit();
}

} // namespace tarsil
