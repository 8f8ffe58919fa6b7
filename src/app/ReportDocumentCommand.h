// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/FlutterQuestions.h"
#include "base/user/Progress.h"

#include <optional>
#include <string>

namespace tarsil {

class Document;
class UserInterface;
struct ReportInput;

/// The command "Write Report ...": writes the workspace as one document, with the flutter table of
/// all plots and the stability of all evolutions.
class ReportDocumentCommand
{
public:
    /// All of them must outlive this object.
    ReportDocumentCommand(Document& document, UserInterface& user, FlutterQuestions& questions)
        : m_document(document), m_user(user), m_questions(questions)
    { }

    /// First shows which rows of the plots have no curve and are left out. Asks for the reference
    /// damping, the speed limit, the file, and the Mach number of each evolution without one,
    /// unless the user has given it before; without an answer, or after a stop, nothing is written.
    /// Values that cannot be computed have empty cells, and one message lists them afterwards.
    /// Errors: 13 for an answer that is not a number; those of `writeReport`.
    void run();

private:
    std::optional<std::string> askFile();
    ReportInput inputOf(const FlutterAnswers& answers);
    bool addFlutterTable(ReportInput& input, const Progress& progress);
    bool write(ReportInput& input, const std::string& path);
    bool addStability(ReportInput& input, const Progress& progress) const;

    Document& m_document;
    UserInterface& m_user;
    FlutterQuestions& m_questions;
};

} // namespace tarsil
