// SPDX-License-Identifier: Apache-2.0
#include "FaultTrial.h"

#include "analysis/XlsxReader.h"

#include <cerrno>
#include <sstream>
#include <system_error>

namespace tarsil::test {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostCalls = 500; // a writer with more calls does not terminate

std::vector<std::string> variables(const fs::path& watched, const fs::path& home)
{
    return {"PATH=/usr/bin:/bin",
            "LC_ALL=C.UTF-8",
            "QT_QPA_PLATFORM=offscreen",
            "ASAN_OPTIONS=detect_leaks=0",
            "HOME=" + home.string(),
            "XDG_RUNTIME_DIR=" + home.string(),
            "TMPDIR=" + (watched / "tmp").string()};
}

std::string cellsOf(const fs::path& workbook)
{
    const Sheet sheet = readXlsx(workbook.string());
    std::string cells;
    for (std::size_t row = 1; row <= sheet.rowCount(); ++row) {
        for (std::size_t column = 1; column <= sheet.columnCount(); ++column)
            cells += Sheet::textOf(sheet.cell(row, column)) + '\t';
        cells += '\n';
    }
    return cells;
}

/// Removes the lines that differ from run to run.
std::string timeless(const std::string& bytes)
{
    std::istringstream lines(bytes);
    std::string kept;
    for (std::string line; std::getline(lines, line);) {
        const auto isIn = [&line](const char* mark) {
            return line.find(mark) != std::string::npos;
        };
        if (!isIn("Date") && !isIn("/ID") && !isIn("uuid:"))
            kept += line + '\n';
    }
    return kept;
}

/// Whether a fault has an effect on this kind of call. Killing a program before a call that only
/// looks has the same result as before the next one.
bool concerns(FaultKind fault, CallKind call)
{
    switch (fault) {
    case FaultKind::Shorten:
        return call == CallKind::Read || call == CallKind::Write;
    case FaultKind::FailFromThen:
        return changesFiles(call);
    case FaultKind::Kill:
        return call != CallKind::Read && call != CallKind::Look;
    default:
        return true;
    }
}

} // namespace

std::string lastingContents(const fs::path& file)
{
    if (!fs::exists(file))
        return {};
    const std::string bytes = fileBytes(file);
    if (file.extension() == ".xlsx" && bytes.starts_with("PK"))
        return cellsOf(file);
    return timeless(bytes);
}

FaultTrial::FaultTrial(Writer writer)
    : m_writer(std::move(writer)), m_place(m_folder.path() / "watched")
{
    fs::create_directory(m_folder.path() / "home");
    fs::permissions(m_folder.path() / "home", fs::perms::owner_all);
}

void FaultTrial::run()
{
    const std::string old = m_writer.old;
    for (const bool isThere : {true, false}) {
        m_writer.old = isThere ? old : std::string();
        if (isThere ? old.empty() : !m_writer.makesFile)
            continue;
        SCOPED_TRACE(isThere ? "over an old file" : "without an old file");
        const RunResult good = runOnce({});
        m_good = lastingContents(target());
        m_calls = good.calls;
        ASSERT_EQ(good.status, 0) << good.err;
        ASSERT_FALSE(m_good.empty()) << m_writer.name << " was not written";
        tryFaults(FaultKind::Fail, EIO);
        if (!isThere && !old.empty())
            continue; // the others do not depend on it
        tryFaults(FaultKind::FailFromThen, ENOSPC);
        tryFaults(FaultKind::Shorten, 0);
        tryFaults(FaultKind::Kill, 0);
    }
}

void FaultTrial::tryFaults(FaultKind kind, int error)
{
    for (std::size_t call = 1; call < mostCalls; ++call) {
        if (call <= m_calls.size() && !concerns(kind, m_calls[call - 1]))
            continue;
        const RunResult result = runOnce({kind, call, error, {}});
        if (result.metCall.empty()) {
            EXPECT_EQ(result.status, 0) << result.err;
            EXPECT_GT(call, 1U) << "no call was met";
            return;
        }
        SCOPED_TRACE("fault " + std::to_string(static_cast<int>(kind)) + " at call "
                     + std::to_string(call) + ": " + result.metCall + "\n" + result.err);
        judge(result, kind);
    }
    ADD_FAILURE() << m_writer.name << " is not written after that many calls";
}

RunResult FaultTrial::runOnce(const Fault& fault)
{
    fs::remove_all(m_place);
    fs::create_directories(m_place / "out");
    fs::create_directory(m_place / "tmp");
    if (!m_writer.old.empty())
        m_folder.write("watched/out/" + m_writer.name, m_writer.old);
    const fs::path home = m_folder.path() / "home";
    return FaultInjector(m_place.string(), home.string(), variables(m_place, home))
        .run(m_writer.command(target().string()), fault);
}

void FaultTrial::judge(const RunResult& result, FaultKind kind)
{
    if (kind == FaultKind::Kill) {
        EXPECT_TRUE(isOld() || isNew()) << "neither the old nor the new file";
        return;
    }
    judgeEnd(result);
    judgeFolder(result);
}

void FaultTrial::judgeEnd(const RunResult& result)
{
    EXPECT_EQ(result.signal, 0) << "a crash";
    if (result.status == 0) {
        EXPECT_TRUE(isNew()) << "success without the new file";
    } else {
        EXPECT_EQ(result.status, 1);
        const bool isRemark =
            !m_writer.remark.empty() && result.err.find(m_writer.remark) != std::string::npos;
        EXPECT_TRUE(isOld() || (isRemark && isNew())) << "a failure that left no old file";
        EXPECT_NE(result.err.find(knownName()), std::string::npos) << "the file is not named";
    }
}

/// Ignores a temporary file that is left because removing it failed.
void FaultTrial::judgeFolder(const RunResult& result)
{
    if (result.metCall.starts_with("unlink"))
        return;
    for (const auto& entry : fs::recursive_directory_iterator(m_place)) {
        EXPECT_TRUE(entry.is_directory() || entry.path() == target()
                    || entry.path().filename() == m_writer.neighbour)
            << entry.path() << " is left over";
    }
}

/// The path of the target.
fs::path FaultTrial::target() const
{
    const fs::path folder = m_place / "out";
    if (knownName() == m_writer.name)
        return folder / m_writer.name;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().string().starts_with(knownName())
            && entry.path().extension() == fs::path(m_writer.name).extension())
            return entry.path();
    }
    return folder / m_writer.name;
}

std::string FaultTrial::knownName() const
{
    return m_writer.name.substr(0, m_writer.name.find('*'));
}

bool FaultTrial::isOld() const
{
    return m_writer.old.empty() ? !fs::exists(target())
                                : fs::exists(target()) && fileBytes(target()) == m_writer.old;
}

bool FaultTrial::isNew() const
{
    return lastingContents(target()) == m_good;
}

} // namespace tarsil::test
