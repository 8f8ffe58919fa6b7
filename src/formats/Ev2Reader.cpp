#include "base/files/TextStream.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Format.h"
#include "formats/Ev2Layout.h"
#include "formats/ResultRow.h"
#include "model/EVM.h"

#include <algorithm>
#include <string>

namespace tarsil {

namespace {

using ev2layout::KeyValue;

class Ev2Reader
{
public:
    Ev2Reader(TextStream& stream, EVM& evolution) : m_stream(stream), m_evolution(evolution) { }

    void read();

private:
    void skipTo(std::string_view header);
    bool readSectionLine(std::string_view& line);
    void readProcessingLine(std::string_view line);
    void readModelLine(const KeyValue& entry);
    bool readModelText(const KeyValue& entry);
    bool readModelNumber(const KeyValue& entry);
    void addToList(KeyedTexts& list, const KeyValue& entry);
    void readResults();

    TextStream& m_stream;
    EVM& m_evolution;
};

void Ev2Reader::read()
{
    std::string_view line;
    skipTo(ev2layout::processingHeader);
    while (readSectionLine(line))
        readProcessingLine(line);
    skipTo(ev2layout::modelHeader);
    while (readSectionLine(line))
        readModelLine(ev2layout::splitAtFirstEqual(line));
    skipTo(ev2layout::resultHeader);
    readResults();
}

void Ev2Reader::skipTo(std::string_view header)
{
    while (!m_stream.atEndOfStream()) {
        if (m_stream.readLine() == header)
            return;
    }
    throw RunTimeError(ErrorNumber::InputPastEndOfFile, "EVM",
                       m_stream.place() + ": no line \"" + std::string(header) + "\"");
}

/// The next line of a section; false at the empty line, or the end of the file, that closes it.
bool Ev2Reader::readSectionLine(std::string_view& line)
{
    if (m_stream.atEndOfStream())
        return false;
    line = m_stream.readLine();
    return !line.empty();
}

void Ev2Reader::readProcessingLine(std::string_view line)
{
    const auto [key, rest] = ev2layout::splitAtFirstEqual(line);
    const std::string_view value = rest.substr(0, rest.find('='));
    if (key == "Program_version")
        m_evolution.programVersion = decodeText(value);
    else if (key == "EV2_version")
        m_evolution.ev2Version = decodeText(value);
    else if (key == "Running_date")
        m_evolution.runningDate = decodeText(value);
}

void Ev2Reader::readModelLine(const KeyValue& entry)
{
    if (readModelText(entry) || readModelNumber(entry))
        return;
    if (entry.key.find("Modif") != std::string_view::npos)
        addToList(m_evolution.Param.modifications, entry);
    if (entry.key.find("Legend") != std::string_view::npos)
        addToList(m_evolution.Param.legends, entry);
}

bool Ev2Reader::readModelText(const KeyValue& entry)
{
    const std::pair<std::string_view, std::string*> places[] = {
        {"Nastran_version", &m_evolution.solverVersion},
        {"Flutter_method", &m_evolution.flutterMethod},
        {"Airplane", &m_evolution.Param.Airplane},
        {"Script", &m_evolution.Param.Script},
        {"Mass_config", &m_evolution.Param.Mass},
        {"Analysis_type", &m_evolution.Param.AnalysisType}};
    for (const auto& [key, text] : places) {
        if (key == entry.key) {
            *text = decodeText(entry.value);
            return true;
        }
    }
    return false;
}

bool Ev2Reader::readModelNumber(const KeyValue& entry)
{
    const auto where = [this, &entry] { return m_stream.place() + ", " + std::string(entry.key); };
    if (entry.key == "Mach_number") {
        m_evolution.Param.Mach = toSingle(entry.value, "EVM", where());
        return true;
    }
    const std::pair<std::string_view, std::int16_t*> places[] = {
        {"Struct_modes", &m_evolution.numberOfStructuralModes},
        {"Aeroel_modes", &m_evolution.na},
        {"No_of_speeds", &m_evolution.numberOfSpeeds}};
    for (const auto& [key, number] : places) {
        if (key != entry.key)
            continue;
        const NumberStatus status = parseInteger16(entry.value, *number);
        if (status != NumberStatus::Ok)
            throwNumberError(status, entry.value, "EVM", where());
        return true;
    }
    return false;
}

void Ev2Reader::addToList(KeyedTexts& list, const KeyValue& entry)
{
    const std::optional<std::string_view> key = ev2layout::entryKey(entry.key);
    const auto where = [this, &entry] {
        return m_stream.place() + ": \"" + std::string(entry.key) + "\"";
    };
    if (!key)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                           where() + " has no index in parentheses");
    if (list.find(*key) != nullptr)
        throw RunTimeError(ErrorNumber::KeyAlreadyAssociated, "EVM", where());
    list.add(decodeText(*key), decodeText(entry.value));
}

void Ev2Reader::readResults()
{
    for (std::size_t i = 0; i < ev2layout::headingLines; ++i)
        m_stream.readLine();
    ResultTable table(m_stream, m_evolution, '|');
    while (table.readRow()) {
        if (table.fieldCount() <= ev2layout::mostFieldsWithoutFactors) {
            m_evolution.hasParticipationFactors = false;
        } else if (const std::size_t step = ev2layout::factorStep(table.fieldCount()); step > 0) {
            table.readFactors(step);
            m_evolution.hasParticipationFactors = true;
        }
    }
    table.closeMode();
}

} // namespace

void readEv2(TextStream& stream, EVM& evolution)
{
    evolution.isNewFormat = true;
    Ev2Reader(stream, evolution).read();
}

} // namespace tarsil
