// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The sections and keys of a workspace, for reader and writer.
namespace tarsil::workspacekeys {

inline constexpr std::string_view general = "GENERAL INFORMATION";
inline constexpr std::string_view userName = "Username";
inline constexpr std::string_view version = "tsw_Version";
inline constexpr std::string_view description = "Analysis_Description";
inline constexpr std::string_view dateCreated = "Date_Created";
inline constexpr std::string_view dateModified = "Date_Modified";

inline constexpr std::string_view evolutionFiles = "MODAL EVOLUTION FILES";
inline constexpr std::string_view fileCount = "NoOfFiles";
inline constexpr std::string_view file = "File";

// Further keys, ignored by older programs.
inline constexpr std::string_view edited = "Edited";
inline constexpr std::string_view reference = "Reference";

inline constexpr std::string_view plots = "PLOTS";
inline constexpr std::string_view plotCount = "NoOfPlots";

inline constexpr std::string_view caption = "Caption";
inline constexpr std::string_view header = "Header";
inline constexpr std::string_view headerPosition = "HeadPos";
inline constexpr std::string_view mechanism = "Mechanism";
inline constexpr std::string_view mechanismPosition = "MechPos";
inline constexpr std::string_view legend = "Legend";
inline constexpr std::string_view legendPosition = "LegPos";
inline constexpr std::string_view velAxis = "velAxis";
inline constexpr std::string_view freqAxis = "freqAxis";
inline constexpr std::string_view gAxis = "gAxis";
inline constexpr std::string_view seriesCount = "NoOfSeries";
inline constexpr std::string_view series = "Serie";

// Further keys, ignored by older programs.
inline constexpr std::string_view referenceSpeed = "RefSpeed";
inline constexpr std::string_view dampingLine = "DampLine";
inline constexpr std::string_view seriesLook = "SerieLook";
inline constexpr std::string_view seriesHidden = "SerieHidden";
inline constexpr std::string_view breakAtJumps = "BreakAtJumps";

inline constexpr std::string_view endOfFile = "END OF FILE";

/// The default of a general text or count.
inline constexpr std::string_view noText = "   ";

/// The default of a value of a plot.
inline constexpr std::string_view absent = "Empty";

/// "PLOT1" and so on.
std::string plotSection(std::size_t number);

/// The key of one of several values, counted from 1: "File(1)".
std::string numbered(std::string_view key, std::size_t number);

} // namespace tarsil::workspacekeys
