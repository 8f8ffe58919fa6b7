// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/UserInterface.h"

namespace tarsil::test {

/// A user who refuses everything. The effect of a message is that of the derived class.
class SilentUser : public UserInterface
{
public:
    bool confirm(const std::string& /*question*/, const std::string& /*title*/) override
    {
        return false;
    }
    Unsaved askToSave(const std::string& /*question*/, const std::string& /*title*/) override
    {
        return Unsaved::Cancel;
    }
    std::optional<std::string> askText(const std::string& /*prompt*/, const std::string& /*title*/,
                                       const std::string& /*initial*/) override
    {
        return std::nullopt;
    }
    std::optional<std::size_t> askChoice(const std::string& /*prompt*/,
                                         const std::string& /*title*/,
                                         const std::vector<std::string>& /*choices*/) override
    {
        return std::nullopt;
    }
    std::vector<std::string> askOpenFiles(const FileQuestion& /*question*/) override { return {}; }
    std::optional<std::string> askSaveFile(const FileQuestion& /*question*/) override
    {
        return std::nullopt;
    }
    std::optional<std::string> askFolder(const std::string& /*initial*/) override
    {
        return std::nullopt;
    }
    void showStatus(std::string_view /*text*/) override { }
    void showNote(std::string_view /*text*/) override { }
    void beginCommand() override { }
    bool showProgress(std::size_t /*done*/, std::size_t /*total*/) override { return true; }
};

} // namespace tarsil::test
