// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// A mass configuration of the aircraft. All values are the texts of the file, with their units.
struct MassConf
{
    std::string Mval; ///< mass
    std::string CGval; ///< centre of gravity: value
    std::string CGpos; ///< centre of gravity: position
    std::string LongName;
    std::string ShortName; ///< the name that `Param::Mass` of an evolution refers to

    bool operator==(const MassConf&) const = default;
};

/// A flutter mechanism with the axes for plots of it. The ranges are arguments of `SetScale`, so a
/// minimum may be the larger number.
struct FlutterMechanism
{
    float vthick = 0; ///< ticks of the speed axis
    float gthick = 0; ///< ticks of the damping axis
    float fthick = 0; ///< ticks of the frequency axis
    float gmin = 0; ///< damping
    float gmax = 0;
    float vmin = 0; ///< speed, KEAS
    float vmax = 0;
    float fmin = 0; ///< frequency, Hz
    float fmax = 0;
    std::string LongName;
    std::string ShortName;

    bool operator==(const FlutterMechanism&) const = default;
};

/// The envelope speeds at one Mach number, in KEAS. A plot shows all three as marks on its speed
/// axis.
struct FlutterEnvelope
{
    float VL = 0; ///< limit speed
    float Vd = 0; ///< dive speed
    float Ceiling = 0; ///< speed at the ceiling
    std::string name; ///< the Mach number in the form "0.00#": "0.40", "0.785"

    bool operator==(const FlutterEnvelope&) const = default;
};

/// The name of the envelope of a Mach number.
std::string envelopeName(float mach);

/// The contents of an aircraft information file (.inp). The collections are in file order; a name
/// may occur more than once.
class AirplaneInfo
{
public:
    // The labels of the three envelope speeds in a plot; empty when the file has none.
    std::string VLTag;
    std::string VdTag;
    std::string CeTag;

    std::vector<MassConf> MassConfs;
    std::vector<FlutterMechanism> FlutterMechs;
    std::string Filename; ///< path of the file, in stored or native form
    std::vector<FlutterEnvelope> FlutterEnvs;

    /// Reads the file `Filename` and replaces all tags and records. Errors: those of opening a
    /// file, with nothing changed; 9 for an entry with too few fields, 13 or 6 for a field that is
    /// not a number, each with file, line, field and text. Records read before such an entry stay.
    void Create();

    // The first record of a name; null when there is none. An exact match wins over one that
    // differs in surrounding blanks or in the case of ASCII letters.

    const MassConf* massConf(std::string_view shortName) const;
    const FlutterMechanism* flutterMechanism(std::string_view shortName) const;
    const FlutterEnvelope* flutterEnvelope(std::string_view name) const;

    /// The envelope of a Mach number, by its name (`envelopeName`).
    const FlutterEnvelope* envelopeAtMach(float mach) const;
};

} // namespace tarsil
