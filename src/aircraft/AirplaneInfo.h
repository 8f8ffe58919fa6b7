#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// One mass configuration of the aircraft. All of it is text, kept as the file has it, units
/// included.
struct MassConf
{
    std::string Mval; ///< mass
    std::string CGval; ///< centre of gravity, its value
    std::string CGpos; ///< centre of gravity, its position
    std::string LongName;
    std::string ShortName; ///< what an evolution's `Param::Mass` names

    bool operator==(const MassConf&) const = default;
};

/// One flutter mechanism, with the axes that suit plots of it. The ranges are as `SetScale` of a
/// plot takes them, so a minimum may be the larger number.
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

/// The speeds that bound the flight at one Mach number. All three are marked on the speed axis of a
/// plot, so they are in KEAS.
struct FlutterEnvelope
{
    float VL = 0; ///< limit speed
    float Vd = 0; ///< dive speed
    float Ceiling = 0; ///< speed at the ceiling
    std::string name; ///< the Mach number, written as "0.00#" does it: "0.40", "0.785"

    bool operator==(const FlutterEnvelope&) const = default;
};

/// The name of the envelope of a Mach number.
std::string envelopeName(float mach);

/// What an aircraft information file (.inp) says about the aircraft whose flutter is examined. The
/// collections are in file order and may hold a name more than once.
class AirplaneInfo
{
public:
    // What the three envelope speeds are called in a plot; empty when the file does not say.
    std::string VLTag;
    std::string VdTag;
    std::string CeTag;

    std::vector<MassConf> MassConfs;
    std::vector<FlutterMechanism> FlutterMechs;
    std::string Filename; ///< path of the file, in stored or native form
    std::vector<FlutterEnvelope> FlutterEnvs;

    /// Reads the file `Filename` in place of the tags and records held so far. Errors: those of
    /// opening a file, after which nothing has changed; 9 for an entry with too few fields, 13 or 6
    /// for a field that is no number, each naming file, line, field and text. What was read before
    /// such an entry stays.
    void Create();

    // The first record of a name, null when there is none. The name as it is written goes before
    // one that differs in blanks around it or in the case of ASCII letters.

    const MassConf* massConf(std::string_view shortName) const;
    const FlutterMechanism* flutterMechanism(std::string_view shortName) const;
    const FlutterEnvelope* flutterEnvelope(std::string_view name) const;

    /// The envelope of a Mach number, by its name (`envelopeName`).
    const FlutterEnvelope* envelopeAtMach(float mach) const;
};

} // namespace tarsil
