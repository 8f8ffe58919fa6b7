// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class AirplaneInfo;
class TextStream;

/// Appends the records of an aircraft information file to the collections of `info` and sets its
/// tags. Errors: see `AirplaneInfo::Create`; every record read before an error is complete.
void readAirplaneInfo(TextStream& stream, AirplaneInfo& info);

} // namespace tarsil
