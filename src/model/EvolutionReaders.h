#pragma once

namespace tarsil {

class EVM;
class TextStream;

// The three layouts of a modal evolution file, from a stream of lines into an evolution that is new
// and empty. What they take and what they refuse is said at `EVM::Contruct`. A file that is cut
// short or disagrees with its counts is taken as far as it goes.

/// The fixed-column layout (.evm): two points a line, damping written with the opposite sign.
void readEvm(TextStream& stream, EVM& evolution);

/// The sectioned layout (.ev2): key=value headers, results separated by "|".
void readEv2(TextStream& stream, EVM& evolution);

/// The semicolon-separated result table.
void readSemicolonTable(TextStream& stream, EVM& evolution);

} // namespace tarsil
