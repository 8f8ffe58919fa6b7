// SPDX-License-Identifier: Apache-2.0
#include "analysis/StabilitySheet.h"

#include "analysis/Sheet.h"
#include "analysis/StabilityTexts.h"
#include "base/files/FileFacts.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <array>
#include <cmath>

namespace tarsil {

namespace {

enum StabilityColumn : std::size_t {
    File = 1,
    Level,
    Mode,
    Finding,
    Kind,
    StartSpeed,
    Doubt,
    StartFrequency,
    ConfidenceClass,
    Altitude,
    AltitudeSource,
    Mach,
    EndSpeed,
    EndFrequency,
    Peak,
    PeakSpeed,
    PeakFrequency,
    Factor,
    FactorValue,
    Remark
};

constexpr std::array<std::string_view, Remark> headings = {
    "File",          "Level (g)", "Mode",        "Finding",    "Kind",
    "Start (KEAS)",  "Curve +-",  "Start (Hz)",  "Confidence", "Altitude (ft)",
    "Altitude from", "Mach No.",  "End (KEAS)",  "End (Hz)",   "Peak (g)",
    "Peak (KEAS)",   "Peak (Hz)", "Largest MPF", "MPF value",  "Remark"};

/// The meaning of a word or colour, one row each.
struct Explanation
{
    std::string_view word;
    std::string_view meaning;
    CellStyle style = CellStyle::Quiet;
};

constexpr std::array<Explanation, 16> explanations = {{
    {"all modes", "Every mode of a file is judged here, drawn in a plot or not."},
    {"stretch", "Speeds in which one mode has more damping g than a level; g > 0 is unstable."},
    {"becomes unstable", "The stretch has a start and goes up to the last speed."},
    {"hump", "The stretch has a start and an end: the mode becomes stable again."},
    {"becomes stable", "Unstable from the first speed on, up to the end of the stretch.",
     CellStyle::Bad},
    {"unstable throughout", "Unstable at every speed.", CellStyle::Bad},
    {"flutter, divergence", "The root oscillates on both sides of the start, or on neither."},
    {"mixed", "It oscillates on one side only: nothing can be interpolated.", CellStyle::Warning},
    {"A", "The points beside the start are near, and a curve and a straight line agree."},
    {"B", "They are far apart, or curve and line differ; +- is by how much."},
    {"C", "The root jumps or changes its kind: different roots, only the interval holds.",
     CellStyle::Warning},
    {"altitude from density", "Where the standard atmosphere has the density of the points."},
    {"altitude from Mach", "Where the start's speed belongs to the Mach number."},
    {"outside", "Beyond -2,000 to 65,617 ft: no flight has this speed and Mach number."},
    {"noise, weak", "Stretches that rise no higher than the two limits; counted, not listed."},
    {"Flutter (first sheet)", "Lists every crossing, up and down, noise and jumps as well."},
}};

class StabilityWriter
{
public:
    explicit StabilityWriter(Sheet& sheet) : m_sheet(sheet) { }

    void writeHeadings();
    void write(const EvolutionStability& stability);
    bool writeSources(const std::vector<EvolutionStability>& evolutions, const Progress& progress);
    bool writeOrigin(const StabilityReport& report, const Progress& progress);

private:
    void writeVerdict(const EvolutionStability& stability, const StabilityVerdict& verdict);
    void writeMargin(const EvolutionStability& stability);
    void writeLine(const EvolutionStability& stability, const StabilityLine& line);
    void writeStart(const Crossing& start);
    void writeSource(const EVM& evolution);
    void beginRow(std::string_view first, CellStyle style);
    void writeNote(std::string_view first, std::string_view text, CellStyle style);
    void setSingle(StabilityColumn column, double number);

    Sheet& m_sheet;
    std::size_t m_row = 1;
};

void StabilityWriter::writeHeadings()
{
    for (std::size_t i = 0; i < headings.size(); ++i)
        m_sheet.setText(m_row, i + 1, headings[i]);
}

void StabilityWriter::beginRow(std::string_view first, CellStyle style)
{
    ++m_row;
    m_sheet.setText(m_row, File, first);
    m_sheet.setRowStyle(m_row, style);
}

void StabilityWriter::writeNote(std::string_view first, std::string_view text, CellStyle style)
{
    beginRow(first, style);
    m_sheet.setText(m_row, Finding, text);
}

/// Sets the decimal value of a single, as the flutter table does.
void StabilityWriter::setSingle(StabilityColumn column, double number)
{
    m_sheet.setNumber(m_row, column, decimalValue(static_cast<float>(number)));
}

CellStyle styleOf(const StabilityVerdict& verdict)
{
    if (!verdict.unstableFromFirst.empty())
        return CellStyle::Bad;
    return verdict.lowest ? CellStyle::Strong : CellStyle::Good;
}

void StabilityWriter::writeVerdict(const EvolutionStability& stability,
                                   const StabilityVerdict& verdict)
{
    writeNote(stability.evolution->FileName, verdictText(verdict, stability.lastSpeed),
              styleOf(verdict));
    m_sheet.setNumber(m_row, Level, decimalValue(verdict.level));
}

void StabilityWriter::writeMargin(const EvolutionStability& stability)
{
    const Margin& margin = *stability.margin;
    writeNote(stability.evolution->FileName, marginText(margin),
              margin.passes ? CellStyle::Good : CellStyle::Bad);
    m_sheet.setNumber(m_row, Level, decimalValue(margin.required.requirement.level));
}

std::string altitudeSource(const FlightCondition& condition)
{
    const std::string source = condition.isFromDensity ? "density" : "Mach";
    return isOutsideAtmosphere(*condition.altitude) ? source + ", outside" : source;
}

void StabilityWriter::writeStart(const Crossing& start)
{
    m_sheet.setText(m_row, Kind, nameOf(start.kind));
    m_sheet.setText(m_row, ConfidenceClass, nameOf(start.confidence));
    if (!hasSpeed(start))
        return;
    setSingle(StartSpeed, start.speed);
    setSingle(Doubt, std::fabs(start.speedOnCurve - start.speed));
    setSingle(StartFrequency, start.frequency);
    if (start.condition.altitude) {
        m_sheet.setNumber(m_row, Altitude, *start.condition.altitude);
        m_sheet.setText(m_row, AltitudeSource, altitudeSource(start.condition));
    }
    if (start.condition.mach)
        setSingle(Mach, *start.condition.mach);
    if (start.dominant) {
        m_sheet.setNumber(m_row, Factor, static_cast<double>(start.dominant->number));
        setSingle(FactorValue, start.dominant->value);
    }
}

CellStyle styleOf(const Stretch& stretch)
{
    if (!stretch.start)
        return CellStyle::Bad;
    return hasSpeed(*stretch.start) ? CellStyle::Plain : CellStyle::Warning;
}

void StabilityWriter::writeLine(const EvolutionStability& stability, const StabilityLine& line)
{
    const Stretch& stretch = line.stretch;
    writeNote(stability.evolution->FileName, directionText(stretch), styleOf(stretch));
    m_sheet.setNumber(m_row, Mode, line.mode);
    m_sheet.setNumber(m_row, Level, decimalValue(line.level));
    if (stretch.start)
        writeStart(*stretch.start);
    if (stretch.end && hasSpeed(*stretch.end)) {
        setSingle(EndSpeed, stretch.end->speed);
        setSingle(EndFrequency, stretch.end->frequency);
    }
    setSingle(Peak, stretch.peak);
    setSingle(PeakSpeed, stretch.peakSpeed);
    setSingle(PeakFrequency, stretch.peakFrequency);
    m_sheet.setText(m_row, Remark, remarkText(stretch));
}

void StabilityWriter::write(const EvolutionStability& stability)
{
    const std::string& file = stability.evolution->FileName;
    if (!stability.obstacle.empty()) {
        writeNote(file, "cannot be tracked: " + stability.obstacle, CellStyle::Warning);
        return;
    }
    for (const StabilityVerdict& verdict : stability.verdicts)
        writeVerdict(stability, verdict);
    if (stability.margin)
        writeMargin(stability);
    for (const StabilityLine& line : stability.lines)
        writeLine(stability, line);
    writeNote(file, leftOutText(stability.noise, stability.weak), CellStyle::Quiet);
}

/// The facts about the file now, or the reason why it cannot be read.
std::string factsText(std::string_view path)
{
    try {
        const FileFacts facts = factsOf(path);
        return std::to_string(facts.size) + " bytes, " + facts.modified + " UTC, SHA-256 "
            + facts.sha256;
    } catch (const RunTimeError& error) {
        return error.description();
    }
}

void StabilityWriter::writeSource(const EVM& evolution)
{
    writeNote(evolution.FileName, factsText(evolution.path()), CellStyle::Quiet);
    m_sheet.setText(m_row, Remark, wholePath(evolution.path()));
    const Provenance& provenance = evolution.provenance;
    if (!provenance.isImported())
        return;
    writeNote("imported from", factsText(provenance.source), CellStyle::Quiet);
    m_sheet.setText(m_row, Remark,
                    provenance.source + ", lines " + provenance.sourceLines + ", speeds in "
                        + provenance.speedUnit + " x " + provenance.vref + ", density in "
                        + provenance.density);
}

/// False after a stop.
bool StabilityWriter::writeSources(const std::vector<EvolutionStability>& evolutions,
                                   const Progress& progress)
{
    for (std::size_t i = 0; i < evolutions.size(); ++i) {
        writeSource(*evolutions[i].evolution);
        if (!goesOn(progress, i + 1, evolutions.size() + 1))
            return false;
    }
    return true;
}

/// False after a stop.
bool StabilityWriter::writeOrigin(const StabilityReport& report, const Progress& progress)
{
    ++m_row;
    writeNote("Settings", settingsText(report.settings), CellStyle::Strong);
    writeNote("Program", report.program, CellStyle::Strong);
    writeNote("Source files", "as they are now", CellStyle::Strong);
    if (!writeSources(report.evolutions, progress))
        return false;
    ++m_row;
    writeNote("How to read this", "", CellStyle::Strong);
    for (const Explanation& explanation : explanations)
        writeNote(explanation.word, explanation.meaning, explanation.style);
    return true;
}

} // namespace

bool writeStability(const StabilityReport& report, Sheet& sheet, const Progress& progress)
{
    StabilityWriter writer(sheet);
    writer.writeHeadings();
    for (const EvolutionStability& stability : report.evolutions)
        writer.write(stability);
    return writer.writeOrigin(report, progress);
}

} // namespace tarsil
