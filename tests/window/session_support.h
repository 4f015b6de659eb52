#pragma once

#include "common/session.h"
#include "forms/form.h"
#include "registry_support.h"
#include "support.h"
#include "win/thread_windows.h"

namespace quillomat {

/// Returns the open form of a class, or null.
template <class Window>
Window* find_form() {
    for (const HWND window : thread_windows()) {
        if (auto* const form = dynamic_cast<Window*>(Form::from(window))) return form;
    }
    return nullptr;
}

/// Tests windows of the program with files and settings of the test's own.
struct SessionTest : WindowTest {
    SessionTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
    }

    void write(const std::filesystem::path& name, std::string_view bytes) const { folder.write(name, bytes); }
    /// Returns a file's content, or an empty text if there is no such file.
    std::string bytes(const std::filesystem::path& name) const { return folder.read(name); }
    bool exists(const std::filesystem::path& name) const { return std::filesystem::exists(folder.path() / name); }

    /// What the windows that send mails tell when they open.
    void expect_mail_requirements() {
        expect_message(
            L"Message",
            L"To send messages from Quillomat, you need an e-mail client such as Outlook Express, MS Outlook, "
            L"Netscape, Eudora, etc. You also need to have a POP3 e-mail account on one of these clients. You "
            L"cannot send e-mail from Quillomat if you use Hotmail or any other web based e-mail.");
    }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
};

}  // namespace quillomat
