// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

class AeMode;
class EVM;
class UserInterface;

/// What the user answers before a flutter table is computed.
struct FlutterAnswers
{
    double referenceDamping = 0;
    double speedLimit = 0; ///< KEAS
};

/// The questions of the commands that compute a flutter table, which share the answers.
class FlutterQuestions
{
public:
    /// `user` must outlive this object.
    explicit FlutterQuestions(UserInterface& user) : m_user(user) { }

    /// Asks for the reference damping and the speed limit. Empty without an answer to one of them.
    /// Error 13 for an answer that is not a number.
    std::optional<FlutterAnswers> ask();

    /// Asks for the Mach number of an evolution that has none. The title names evolution and mode,
    /// because the prompt does not. Offers the last answer for the same evolution. `busy` is the
    /// status afterwards.
    std::optional<std::string> askMach(const AeMode& mode, std::string_view prompt,
                                       std::string_view busy);

    /// Like `askMach`, but asks only for an evolution without an earlier answer.
    std::optional<std::string> askMachOnce(const AeMode& mode, std::string_view prompt,
                                           std::string_view busy);

    /// The last answer of the user for an evolution; 0 when there is none.
    float answeredMach(const EVM& evolution) const;

private:
    std::optional<std::string> askLine(std::string_view prompt);

    UserInterface& m_user;
    std::map<std::string, std::string> m_machAnswers; ///< by path of the evolution
};

} // namespace tarsil
