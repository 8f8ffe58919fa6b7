// SPDX-License-Identifier: Apache-2.0
#include "base/files/TextStream.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Format.h"
#include "formats/Ev2Layout.h"
#include "formats/Ev2Parser.h"
#include "formats/ResultReadingSink.h"
#include "model/EVM.h"

#include <string>

namespace tarsil {

namespace {

using ev2layout::KeyValue;

/// Fills the evolution.
class Ev2ReadingSink : public ResultReadingSink
{
public:
    using ResultReadingSink::ResultReadingSink;

    void startSearch() const { }
    [[noreturn]] bool findMissingSection(std::string_view header) const;
    static bool endsSection(std::string_view /*line*/) { return false; }
    static bool acceptsModelLine(std::string_view /*line*/) { return true; }

    void setText(const ev2layout::TextKey& key, std::string_view value)
    {
        m_evolution.*key.member = decodeText(value);
    }
    void setText(const ev2layout::ParameterKey& key, std::string_view value)
    {
        m_evolution.Param.*key.member = decodeText(value);
    }
    void setText(const ev2layout::ProvenanceKey& key, std::string_view value)
    {
        m_evolution.provenance.*key.member = decodeText(value);
    }
    void setMach(float mach) { m_evolution.Param.Mach = mach; }
    void setCount(const ev2layout::CountKey& key, std::optional<std::int16_t> count);
    void addToList(const ev2layout::ListKey& key, std::string_view index, const KeyValue& entry);

    [[noreturn]] void addMissingIndex(const KeyValue& entry) const;
    [[noreturn]] void addWrongValue(NumberStatus status, const KeyValue& entry) const;
    void addMissingHeadings() { m_stream.readLine(); } // raises the error at the end of the file

    void startFactors(std::size_t fields, std::size_t step);
    void endPoint(std::optional<std::int16_t> /*modeNumber*/, std::optional<float> /*speed*/) const
    { }
    void endRow(std::string_view /*line*/) const { }
    bool endRows();
    void addRowAfterResults() const { }

private:
    std::string whereIs(const KeyValue& entry) const;
};

bool Ev2ReadingSink::findMissingSection(std::string_view header) const
{
    throw RunTimeError(ErrorNumber::InputPastEndOfFile, "EVM",
                       m_stream.location() + ": no line \"" + std::string(header) + "\"");
}

void Ev2ReadingSink::setCount(const ev2layout::CountKey& key, std::optional<std::int16_t> count)
{
    m_evolution.*key.member =
        count.value_or(0); // always has a value, because an invalid number is an error
}

void Ev2ReadingSink::addToList(const ev2layout::ListKey& key, std::string_view index,
                               const KeyValue& entry)
{
    KeyedTexts& list = m_evolution.Param.*key.member;
    if (list.find(index) != nullptr)
        throw RunTimeError(ErrorNumber::KeyAlreadyAssociated, "EVM", whereIs(entry));
    list.add(decodeText(index), decodeText(entry.value));
}

void Ev2ReadingSink::addMissingIndex(const KeyValue& entry) const
{
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                       whereIs(entry) + " has no index in parentheses");
}

void Ev2ReadingSink::addWrongValue(NumberStatus status, const KeyValue& entry) const
{
    addWrongNumber(status, entry.value, std::string(entry.key));
}

/// The last row that decides whether there are factors applies to the whole file.
void Ev2ReadingSink::startFactors(std::size_t fields, std::size_t step)
{
    if (fields <= resultfield::mostWithoutFactors)
        m_evolution.hasParticipationFactors = false;
    else if (step > 0)
        m_evolution.hasParticipationFactors = true;
}

bool Ev2ReadingSink::endRows()
{
    closeMode();
    return false;
}

std::string Ev2ReadingSink::whereIs(const KeyValue& entry) const
{
    return m_stream.location() + ": \"" + std::string(entry.key) + "\"";
}

} // namespace

void readEv2(TextStream& stream, EVM& evolution)
{
    evolution.isNewFormat = true;
    Ev2ReadingSink sink(stream, evolution);
    Ev2Parser(stream, sink).parse();
}

} // namespace tarsil
