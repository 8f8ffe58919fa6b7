// SPDX-License-Identifier: Apache-2.0
#include "document/EvolutionFilter.h"

#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <QStringList>

#include <algorithm>

namespace tarsil {

namespace {

bool hasPart(const std::string& text, const QString& part)
{
    return QString::fromStdString(text).contains(part, Qt::CaseInsensitive);
}

} // namespace

EvolutionFilter::EvolutionFilter(const QString& text)
{
    for (const QString& one : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (const std::optional<Word> word = wordOf(one))
            m_words.push_back(*word);
    }
}

/// Empty for a word that is not complete.
std::optional<EvolutionFilter::Word> EvolutionFilter::wordOf(const QString& text)
{
    const QString mass = QStringLiteral("mass:");
    const QString mach = QStringLiteral("mach:");
    if (text.startsWith(mach, Qt::CaseInsensitive))
        return machWord(text.mid(mach.size()));
    if (text.startsWith(mass, Qt::CaseInsensitive))
        return Word {Kind::Mass, text.mid(mass.size())};
    if (text.compare(QStringLiteral("warnings"), Qt::CaseInsensitive) == 0)
        return Word {Kind::Warnings, {}};
    return Word {Kind::Name, text};
}

std::optional<EvolutionFilter::Word> EvolutionFilter::machWord(const QString& range)
{
    const QString between = QStringLiteral("..");
    Word word {Kind::Mach, {}};
    const auto read = [&](int part, float& value) {
        return parseSingle(range.section(between, part, part).toStdString(), value)
            == NumberStatus::Ok;
    };
    if (!read(0, word.least))
        return std::nullopt;
    word.most = word.least;
    if (range.contains(between) && !read(1, word.most))
        return std::nullopt;
    return word;
}

bool EvolutionFilter::fits(const Word& word, const EVM& evolution, bool hasWarnings)
{
    switch (word.kind) {
    case Kind::Name:
        return hasPart(evolution.FileName, word.text);
    case Kind::Mass:
        return hasPart(evolution.Param.Mass, word.text);
    case Kind::Mach:
        return evolution.Param.Mach >= word.least && evolution.Param.Mach <= word.most;
    case Kind::Warnings:
        break;
    }
    return hasWarnings;
}

bool EvolutionFilter::accepts(const EVM& evolution, bool hasWarnings) const
{
    return std::all_of(m_words.begin(), m_words.end(),
                       [&](const Word& word) { return fits(word, evolution, hasWarnings); });
}

} // namespace tarsil
