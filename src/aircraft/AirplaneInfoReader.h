#pragma once

namespace tarsil {

class AirplaneInfo;
class TextStream;

/// Appends the records of an aircraft information file to the collections of `info` and sets its
/// tags. What is taken and what is refused is said at `AirplaneInfo::Create`; each record read
/// before an error is there whole.
void readAirplaneInfo(TextStream& stream, AirplaneInfo& info);

} // namespace tarsil
