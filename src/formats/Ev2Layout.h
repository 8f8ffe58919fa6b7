// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"
#include "model/Param.h"
#include "model/Provenance.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The sections of an .ev2 file, their keys, and the members that the keys fill.
namespace tarsil::ev2layout {

constexpr std::string_view processingHeader = "[PROCESSING DATA INFO]";
constexpr std::string_view modelHeader = "[MODEL DATA INFO]";
constexpr std::string_view resultHeader = "[RESULT DATA SUMMARY]";
inline constexpr std::array headers = {processingHeader, modelHeader, resultHeader};
constexpr std::size_t headingLines = 4;
constexpr char separator = '|';

/// A key and the member of `Owner` that it fills.
template <typename Value, typename Owner>
struct Key
{
    std::string_view name;
    Value Owner::*member;
};

using TextKey = Key<std::string, EVM>;
using ParameterKey = Key<std::string, Param>;
using ProvenanceKey = Key<std::string, Provenance>;
using CountKey = Key<std::int16_t, EVM>;
using ListKey = Key<KeyedTexts, Param>;

inline constexpr std::array processingTexts = {TextKey {"Program_version", &EVM::programVersion},
                                               TextKey {"EV2_version", &EVM::ev2Version},
                                               TextKey {"Running_date", &EVM::runningDate}};

/// The keys of imported evolutions, in the same section. If the first three exist, fields 8 and 9
/// of the rows are Mach number and density; other files use these fields differently.
inline constexpr std::array provenanceTexts = {
    ProvenanceKey {"Source", &Provenance::source},
    ProvenanceKey {"Speed_unit", &Provenance::speedUnit},
    ProvenanceKey {"Density", &Provenance::density},
    ProvenanceKey {"Source_lines", &Provenance::sourceLines},
    ProvenanceKey {"Vref", &Provenance::vref},
    ProvenanceKey {"Import_log", &Provenance::log}};
constexpr std::size_t keysOfImports = 3;

inline constexpr std::array modelTexts = {TextKey {"Nastran_version", &EVM::solverVersion},
                                          TextKey {"Flutter_method", &EVM::flutterMethod}};
inline constexpr std::array parameterTexts = {ParameterKey {"Airplane", &Param::Airplane},
                                              ParameterKey {"Script", &Param::Script},
                                              ParameterKey {"Mass_config", &Param::Mass},
                                              ParameterKey {"Analysis_type", &Param::AnalysisType}};
constexpr std::string_view machKey = "Mach_number";
inline constexpr std::array modelCounts = {CountKey {"Struct_modes", &EVM::numberOfStructuralModes},
                                           CountKey {"Aeroel_modes", &EVM::na},
                                           CountKey {"No_of_speeds", &EVM::numberOfSpeeds}};

constexpr std::string_view modificationCountKey = "No_of_modif"; ///< ignored by readers

/// A key that contains one of these adds its value to a list: "Modif(2)".
inline constexpr std::array lists = {ListKey {"Modif", &Param::modifications},
                                     ListKey {"Legend", &Param::legends}};

/// A key=value line: the text before the first "=", and the text after it.
struct KeyValue
{
    std::string_view key;
    std::string_view value;
};

inline KeyValue splitAtFirstEqual(std::string_view line)
{
    const std::size_t equal = line.find('=');
    if (equal == std::string_view::npos)
        return {line, {}};
    return {line.substr(0, equal), line.substr(equal + 1)};
}

/// The index of a list entry: the text between the parentheses of its key. Splits at either
/// parenthesis and returns the second piece; empty without a parenthesis.
inline std::optional<std::string_view> entryIndex(std::string_view key)
{
    const std::size_t open = key.find_first_of("()");
    if (open == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = key.substr(open + 1);
    return rest.substr(0, rest.find_first_of("()"));
}

constexpr std::size_t fieldsOfNarrowRow = 21; ///< factors in every second field
constexpr std::size_t fieldsOfWideRow = 26; ///< factors in every third field

/// The distance in fields between the participation factors of a row with this number of fields; 0
/// for none.
constexpr std::size_t factorStep(std::size_t fields)
{
    if (fields == fieldsOfNarrowRow)
        return 2;
    return fields == fieldsOfWideRow ? 3 : 0;
}

} // namespace tarsil::ev2layout
