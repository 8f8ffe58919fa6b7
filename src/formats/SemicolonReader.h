// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class EVM;
class TextStream;

/// Reads the semicolon-separated result table into a new, empty evolution. This layout is not in
/// the table of formats, because no file name selects it.
void readSemicolonTable(TextStream& stream, EVM& evolution);

} // namespace tarsil
