// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/FlutterQuestions.h"

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
    /// Both must outlive this object.
    ReportDocumentCommand(Document& document, UserInterface& user)
        : m_document(document), m_user(user), m_questions(user)
    { }

    /// First shows which rows of the plots have no curve and are left out. Asks for the reference
    /// damping, the speed limit, the file, and the Mach number at each crossing of an evolution
    /// without one; without an answer nothing is written. Values that cannot be computed have empty
    /// cells, and one message lists them afterwards. Errors: 13 for an answer that is not a number;
    /// those of `writeReport`.
    void run();

private:
    std::optional<std::string> askFile();
    ReportInput inputOf(const FlutterAnswers& answers);
    void addFlutterTable(ReportInput& input);
    void addStability(ReportInput& input) const;

    Document& m_document;
    UserInterface& m_user;
    FlutterQuestions m_questions;
};

} // namespace tarsil
