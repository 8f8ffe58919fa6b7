#include "analysis/StabilitySheet.h"

#include "analysis/Sheet.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <algorithm>
#include <array>

namespace tarsil {

namespace {

enum Column : std::size_t {
    File = 1,
    Mode,
    Level,
    StartSpeed,
    StartFrequency,
    Kind,
    ConfidenceClass,
    EndSpeed,
    EndFrequency,
    Peak,
    PeakSpeed,
    Remark
};

constexpr std::array<std::string_view, Remark> headings = {
    "File",       "Mode",       "Level",    "Start (KEAS)", "Start (Hz)", "Kind",
    "Confidence", "End (KEAS)", "End (Hz)", "Peak g",       "at (KEAS)",  "Remark"};

/// A stretch with the root and level that it belongs to.
struct Line
{
    const RootStretches* root;
    const Stretch* stretch;
};

double startOf(const Line& line)
{
    return line.stretch->start ? line.stretch->start->speed : -1;
}

float lastSpeedOf(const EVM& evolution)
{
    float last = 0;
    for (const auto& mode : evolution.Modes) {
        for (const Point& point : mode->Points)
            last = std::max(last, point.speed);
    }
    return last;
}

bool hasNumber(const Crossing& crossing)
{
    return crossing.kind != CrossingKind::Mixed && !crossing.jumps;
}

std::string intervalText(std::string_view what, const Crossing& crossing)
{
    return std::string(what) + " between " + speedText(crossing.fromSpeed) + " and "
        + speedText(crossing.toSpeed) + " KEAS, different roots";
}

/// What the cells of a stretch do not say.
std::string remarkOf(const Stretch& stretch)
{
    std::vector<std::string> parts;
    if (!stretch.start)
        parts.emplace_back("unstable from the first speed");
    else if (!hasNumber(*stretch.start))
        parts.push_back(intervalText("starts", *stretch.start));
    if (!stretch.end)
        parts.emplace_back("up to the last speed");
    else
        parts.push_back(hasNumber(*stretch.end) ? "hump" : intervalText("ends", *stretch.end));
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

class StabilityWriter
{
public:
    explicit StabilityWriter(Sheet& sheet) : m_sheet(sheet) { }

    void writeHeadings();
    void write(const EVM& evolution, const StabilitySettings& settings);

private:
    void writeVerdict(const EVM& evolution, const StabilityVerdict& verdict);
    void writeLine(const EVM& evolution, const Line& line);
    void writeCrossing(const Crossing& crossing, std::size_t speedColumn);

    Sheet& m_sheet;
    std::size_t m_row = 1;
};

void StabilityWriter::writeHeadings()
{
    for (std::size_t i = 0; i < headings.size(); ++i)
        m_sheet.setText(m_row, i + 1, headings[i]);
}

void StabilityWriter::writeVerdict(const EVM& evolution, const StabilityVerdict& verdict)
{
    ++m_row;
    m_sheet.setText(m_row, File, evolution.FileName);
    m_sheet.setNumber(m_row, Level, decimalValue(verdict.level));
    m_sheet.setText(m_row, Remark, verdictText(verdict, lastSpeedOf(evolution)));
}

void StabilityWriter::writeCrossing(const Crossing& crossing, std::size_t speedColumn)
{
    if (!hasNumber(crossing))
        return;
    m_sheet.setNumber(m_row, speedColumn, crossing.speed);
    m_sheet.setNumber(m_row, speedColumn + 1, crossing.frequency);
}

void StabilityWriter::writeLine(const EVM& evolution, const Line& line)
{
    const Stretch& stretch = *line.stretch;
    ++m_row;
    m_sheet.setText(m_row, File, evolution.FileName);
    m_sheet.setNumber(m_row, Mode, line.root->mode);
    m_sheet.setNumber(m_row, Level, decimalValue(line.root->level));
    if (stretch.start) {
        writeCrossing(*stretch.start, StartSpeed);
        m_sheet.setText(m_row, Kind, nameOf(stretch.start->kind));
        m_sheet.setText(m_row, ConfidenceClass, nameOf(stretch.start->confidence));
    }
    if (stretch.end)
        writeCrossing(*stretch.end, EndSpeed);
    m_sheet.setNumber(m_row, Peak, stretch.peak);
    m_sheet.setNumber(m_row, PeakSpeed, stretch.peakSpeed);
    m_sheet.setText(m_row, Remark, remarkOf(stretch));
}

void StabilityWriter::write(const EVM& evolution, const StabilitySettings& settings)
{
    const std::vector<RootStretches> roots = stabilityOf(evolution, settings);
    std::vector<Line> lines;
    std::size_t noise = 0;
    std::size_t weak = 0;
    for (const RootStretches& root : roots) {
        for (const Stretch& stretch : root.found.stretches) {
            if (stretch.height == StretchHeight::Real)
                lines.push_back({&root, &stretch});
            else
                ++(stretch.height == StretchHeight::Noise ? noise : weak);
        }
    }
    for (const float level : settings.levels)
        writeVerdict(evolution, verdictOf(roots, level));
    std::stable_sort(lines.begin(), lines.end(),
                     [](const Line& a, const Line& b) { return startOf(a) < startOf(b); });
    for (const Line& line : lines)
        writeLine(evolution, line);
    ++m_row;
    m_sheet.setText(m_row, File, evolution.FileName);
    m_sheet.setText(m_row, Remark,
                    std::to_string(noise) + " noise, " + std::to_string(weak)
                        + " weak stretches left out");
}

} // namespace

void writeStability(const std::vector<const EVM*>& evolutions, const StabilitySettings& settings,
                    Sheet& sheet)
{
    StabilityWriter writer(sheet);
    writer.writeHeadings();
    for (const EVM* evolution : evolutions)
        writer.write(*evolution, settings);
}

} // namespace tarsil
