// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace tarsil {

class EVM;

/// A filter of evolutions as the user types it. All its words, separated by blanks, must fit:
///
///     wing              part of the name of the file, in any case
///     mass:clean        part of the mass configuration, in any case
///     mach:0.4          the Mach number
///     mach:0.4..0.6     a Mach number in a range, its ends included
///     warnings          with warnings
///
/// A word that is not complete ("mach:") fits everything.
class EvolutionFilter
{
public:
    /// Accepts everything.
    EvolutionFilter() = default;
    explicit EvolutionFilter(const QString& text);

    /// Whether it accepts everything.
    bool isEmpty() const { return m_words.empty(); }

    bool accepts(const EVM& evolution, bool hasWarnings) const;

private:
    enum class Kind { Name, Mass, Mach, Warnings };

    struct Word
    {
        Kind kind = Kind::Name;
        QString text; ///< of a name or mass configuration
        float least = 0; ///< Mach numbers
        float most = 0;
    };

    static std::optional<Word> machWord(const QString& range);
    static std::optional<Word> wordOf(const QString& text);
    static bool fits(const Word& word, const EVM& evolution, bool hasWarnings);

    std::vector<Word> m_words;
};

} // namespace tarsil
