// SPDX-License-Identifier: Apache-2.0
#include "base/files/TextStream.h"
#include "formats/EvmFormat.h"
#include "formats/EvmLayout.h"
#include "formats/EvmParser.h"
#include "formats/ReadingSink.h"
#include "model/EVM.h"

#include <memory>
#include <utility>

namespace tarsil {

namespace {

/// Collects points to modes: as many points as there are speeds form a mode.
class EvmReadingSink : public ReadingSink
{
public:
    using ReadingSink::ReadingSink;

    void addMissingCounts() { m_stream.readLine(); } // raises the error at the end of the file

    void setSpeedCount(std::int16_t count) { m_evolution.numberOfSpeeds = count; }
    void setModeCount(std::int16_t count) { m_evolution.na = count; }
    void endCounts(std::string_view /*line*/) const { }

    bool wantsPoint() const { return std::cmp_less(m_evolution.Modes.size(), m_evolution.na); }
    bool onlyBlanksLeft() const { return m_stream.onlyBlanksLeft(); }
    static bool accepts(const EvmField& /*field*/) { return true; }
    Point& newPoint(const EvmField& field);
    void endPoint(const EvmField& field, std::optional<std::int16_t> modeNumber, bool hasSpeed);

    static bool endPoints() { return false; }
    void addFieldAfterPoints(const EvmField& /*field*/) const { }

private:
    std::unique_ptr<AeMode> m_mode; ///< null between two modes
};

Point& EvmReadingSink::newPoint(const EvmField& field)
{
    if (!m_mode) {
        m_mode = std::make_unique<AeMode>();
        m_mode->Points.reserve(expectedPoints(field.line.size(), evmlayout::shortestField));
    }
    Point& point = m_mode->Points.emplace_back();
    point.Parent = m_mode.get();
    return point;
}

void EvmReadingSink::endPoint(const EvmField& /*field*/, std::optional<std::int16_t> modeNumber,
                              bool /*hasSpeed*/)
{
    if (std::cmp_less(m_mode->Points.size(), m_evolution.numberOfSpeeds))
        return;
    m_mode->Id =
        modeNumber.value_or(0); // always has a value, because an invalid number is an error
    m_mode->Parent = &m_evolution;
    m_evolution.Modes.push_back(std::exchange(m_mode, nullptr));
}

} // namespace

void readEvm(TextStream& stream, EVM& evolution)
{
    evolution.isNewFormat = false;
    evolution.hasParticipationFactors = false;
    EvmReadingSink sink(stream, evolution);
    EvmParser(stream, sink).parse();
}

} // namespace tarsil
