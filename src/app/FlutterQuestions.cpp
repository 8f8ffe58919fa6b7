// SPDX-License-Identifier: Apache-2.0
#include "app/FlutterQuestions.h"

#include "analysis/FlutterReport.h"
#include "base/numbers/Numbers.h"
#include "base/user/UserInterface.h"
#include "model/EVM.h"

namespace tarsil {

namespace {

constexpr std::string_view answersModule = "wndMain";
constexpr std::string_view questionTitle = "Tarsil";

} // namespace

std::optional<FlutterAnswers> FlutterQuestions::ask()
{
    const auto dampingText = askLine(FlutterReport::dampingPrompt);
    if (!dampingText || dampingText->empty())
        return std::nullopt;
    const auto limitText = askLine(FlutterReport::speedLimitPrompt);
    if (!limitText || limitText->empty())
        return std::nullopt;
    return FlutterAnswers {toDouble(*dampingText, answersModule, "reference damping"),
                           toDouble(*limitText, answersModule, "speed limit")};
}

std::optional<std::string> FlutterQuestions::askLine(std::string_view prompt)
{
    return m_user.askText(std::string(prompt), std::string(questionTitle), {});
}

std::optional<std::string> FlutterQuestions::askMach(const AeMode& mode, std::string_view prompt,
                                                     std::string_view busy)
{
    const EVM& evolution = *mode.Parent;
    m_user.showStatus(evolution.FileName);
    std::string& last = m_machAnswers[evolution.path()];
    auto answer = m_user.askText(std::string(prompt),
                                 std::string(questionTitle) + " - " + evolution.FileName + ", mode "
                                     + std::to_string(mode.Id),
                                 last);
    m_user.showStatus(busy);
    float mach = 0;
    if (answer && parseSingle(*answer, mach) == NumberStatus::Ok)
        last = *answer;
    return answer;
}

std::optional<std::string>
FlutterQuestions::askMachOnce(const AeMode& mode, std::string_view prompt, std::string_view busy)
{
    const auto answer = m_machAnswers.find(mode.Parent->path());
    if (answer != m_machAnswers.end() && !answer->second.empty())
        return answer->second;
    return askMach(mode, prompt, busy);
}

float FlutterQuestions::answeredMach(const EVM& evolution) const
{
    const auto answer = m_machAnswers.find(evolution.path());
    float mach = 0;
    if (answer == m_machAnswers.end() || parseSingle(answer->second, mach) != NumberStatus::Ok)
        return 0;
    return mach;
}

} // namespace tarsil
