// SPDX-License-Identifier: Apache-2.0
#include "analysis/TrendSheet.h"

#include "analysis/Sheet.h"
#include "analysis/StabilityTexts.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <array>
#include <cmath>

namespace tarsil {

namespace {

enum class TrendColumn : std::size_t {
    File = 1,
    Mass,
    Mach,
    Altitude,
    Level,
    Finding,
    Start,
    Frequency,
    Kind,
    Modes,
    Confidence,
    From,
    To,
    Required,
    Remark
};

constexpr std::array<std::string_view, 15> trendHeadings = {
    "File",         "Mass Conf.",      "Mach No.", "Altitude (ft)", "Level (g)",  "Finding",
    "Start (KEAS)", "Start (Hz)",      "Kind",     "Modes",         "Confidence", "From (KEAS)",
    "To (KEAS)",    "Required (KEAS)", "Remark"};

CellStyle rowStyleOf(const TrendPoint& point)
{
    switch (point.onset) {
    case TrendOnset::FirstSpeed:
        return CellStyle::Bad;
    case TrendOnset::None:
        return CellStyle::Good;
    case TrendOnset::Interval:
    case TrendOnset::Unknown:
        return CellStyle::Warning;
    case TrendOnset::Start:
        break;
    }
    return CellStyle::Plain;
}

/// Writes one row of the table.
class TrendRow
{
public:
    TrendRow(Sheet& sheet, std::size_t row) : m_sheet(sheet), m_row(row) { }

    void write(const TrendPoint& point)
    {
        m_sheet.setRowStyle(m_row, rowStyleOf(point));
        set(TrendColumn::File, point.evolution->FileName);
        set(TrendColumn::Mass, point.evolution->Param.Mass);
        setSingle(TrendColumn::Mach, point.condition.mach);
        if (point.condition.altitude)
            setNumber(TrendColumn::Altitude, std::round(*point.condition.altitude));
        setSingle(TrendColumn::Level, point.level);
        set(TrendColumn::Finding, findingOf(point));
        set(TrendColumn::Modes, modesOf(point));
        setSpeeds(point);
        setSingle(TrendColumn::Required, point.required);
        set(TrendColumn::Remark, point.whyNotDrawn);
    }

private:
    void setSpeeds(const TrendPoint& point)
    {
        if (point.start) {
            set(TrendColumn::Kind, nameOf(point.start->kind));
            set(TrendColumn::Confidence, nameOf(point.start->confidence));
        }
        if (point.onset == TrendOnset::Start) {
            setSingle(TrendColumn::Start, point.speed);
            setSingle(TrendColumn::Frequency, point.start->frequency);
        }
        if (point.onset == TrendOnset::Interval || point.onset == TrendOnset::None)
            setSingle(TrendColumn::From, point.speed);
        if (point.onset == TrendOnset::Interval || point.onset == TrendOnset::FirstSpeed)
            setSingle(TrendColumn::To, point.toSpeed);
    }

    void set(TrendColumn column, std::string_view text)
    {
        if (!text.empty())
            m_sheet.setText(m_row, static_cast<std::size_t>(column), text);
    }

    void setNumber(TrendColumn column, const std::optional<double>& number)
    {
        if (number)
            m_sheet.setNumber(m_row, static_cast<std::size_t>(column), *number);
    }

    /// Sets the decimal value of a single, as the other tables do.
    void setSingle(TrendColumn column, const std::optional<double>& number)
    {
        if (number)
            setNumber(column, decimalValue(static_cast<float>(*number)));
    }

    Sheet& m_sheet;
    std::size_t m_row;
};

void writeTrendNote(Sheet& sheet, std::string_view word, std::string_view text)
{
    const std::size_t row = sheet.rowCount() + 1;
    sheet.setText(row, static_cast<std::size_t>(TrendColumn::File), word);
    sheet.setText(row, static_cast<std::size_t>(TrendColumn::Finding), text);
    sheet.setRowStyle(row, CellStyle::Quiet);
}

} // namespace

std::string findingOf(const TrendPoint& point)
{
    switch (point.onset) {
    case TrendOnset::Start:
        return "start";
    case TrendOnset::Interval:
        return "between different roots";
    case TrendOnset::FirstSpeed:
        return "unstable from the first speed";
    case TrendOnset::None:
        return "no instability up to the last speed";
    case TrendOnset::Unknown:
        break;
    }
    return "not judged";
}

std::string modesOf(const TrendPoint& point)
{
    std::string text;
    for (const std::int16_t mode : point.modes)
        text += (text.empty() ? "" : ", ") + std::to_string(mode);
    return text;
}

void writeTrend(const FlutterTrend& trend, Sheet& sheet)
{
    for (std::size_t i = 0; i < trendHeadings.size(); ++i)
        sheet.setText(1, i + 1, trendHeadings[i]);
    for (std::size_t i = 0; i < trend.points.size(); ++i)
        TrendRow(sheet, i + 2).write(trend.points[i]);
}

void writeTrendOrigin(const FlutterTrend& trend, const std::string& program, Sheet& sheet)
{
    writeTrendNote(sheet, "Settings", settingsText(trend.settings));
    writeTrendNote(sheet, "Program", program);
}

} // namespace tarsil
