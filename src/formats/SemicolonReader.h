#pragma once

namespace tarsil {

class EVM;
class TextStream;

/// Reads the semicolon-separated result table into an evolution that is new and empty. This layout
/// is not in the table of formats, since no file name selects it.
void readSemicolonTable(TextStream& stream, EVM& evolution);

} // namespace tarsil
