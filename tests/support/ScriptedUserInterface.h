// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/UserInterface.h"

#include <deque>

namespace tarsil::test {

/// Answers from lists and records messages. A question without an answer is cancelled.
class ScriptedUserInterface : public UserInterface
{
public:
    struct Message
    {
        std::string text;
        std::string title;
        MessageIcon icon;

        bool operator==(const Message&) const = default;
    };

    void showMessage(const std::string& text, const std::string& title, MessageIcon icon) override
    {
        messages.push_back({text, title, icon});
    }
    bool confirm(const std::string& question, const std::string& /*title*/) override
    {
        questions.push_back(question);
        return take(confirmations).value_or(false);
    }
    Unsaved askToSave(const std::string& question, const std::string& /*title*/) override
    {
        questions.push_back(question);
        return take(unsaved).value_or(Unsaved::Cancel);
    }
    std::optional<std::string> askText(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override
    {
        questions.push_back(prompt);
        titles.push_back(title);
        initials.push_back(initial);
        return take(texts);
    }
    std::optional<std::size_t> askChoice(const std::string& prompt, const std::string& title,
                                         const std::vector<std::string>& choices) override
    {
        questions.push_back(prompt);
        titles.push_back(title);
        offered = choices;
        return take(choiceIndices);
    }
    std::vector<std::string> askOpenFiles(const FileQuestion& question) override
    {
        fileQuestions.push_back(question);
        return take(openFiles).value_or(std::vector<std::string>());
    }
    std::optional<std::string> askSaveFile(const FileQuestion& question) override
    {
        fileQuestions.push_back(question);
        return take(saveFiles);
    }
    std::optional<std::string> askFolder(const std::string& initial) override
    {
        initials.push_back(initial);
        return take(folders);
    }
    void showStatus(std::string_view text) override { statuses.emplace_back(text); }
    void showNote(std::string_view text) override { note = text; }
    void beginCommand() override { note.clear(); }
    bool showProgress(std::size_t done, std::size_t total) override
    {
        progress.emplace_back(done, total);
        return progress.size() != stopsAt;
    }

    // Answers, used in order.
    std::deque<bool> confirmations;
    std::deque<Unsaved> unsaved;
    std::deque<std::string> texts;
    std::deque<std::size_t> choiceIndices;
    std::deque<std::vector<std::string>> openFiles;
    std::deque<std::string> saveFiles;
    std::deque<std::string> folders;
    std::size_t stopsAt = 0; ///< the report of progress that is answered by a stop, from 1

    // Questions and messages so far.
    std::vector<Message> messages;
    std::vector<std::string> questions;
    std::vector<std::string> titles; ///< titles of the questions for texts
    std::vector<std::string> initials;
    std::vector<std::string> offered; ///< the choices of the last question for one
    std::vector<FileQuestion> fileQuestions;
    std::vector<std::string> statuses;
    std::string note; ///< the current note
    std::vector<std::pair<std::size_t, std::size_t>> progress;

private:
    template <typename Answer>
    static std::optional<Answer> take(std::deque<Answer>& answers)
    {
        if (answers.empty())
            return std::nullopt;
        Answer answer = std::move(answers.front());
        answers.pop_front();
        return answer;
    }
};

} // namespace tarsil::test
