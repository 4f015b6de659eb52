#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "registry_support.h"
#include "session_support.h"

namespace quillomat {

/// A window that sends mails, on a computer whose default mail program is the tests' own.
class MailTest : public SessionTest {
  protected:
    MailTest() {
        // What a run that was ended has left behind is no record of this one.
        std::filesystem::remove_all(record());
        std::filesystem::create_directories(record());
        SetEnvironmentVariableW(L"QUILLOMAT_MAIL_FOLDER", record().c_str());
        refuse(L"");
        machine.set(L"Software\\Clients\\Mail", nullptr, L"Recorder");
        machine.set(L"Software\\Clients\\Mail\\Recorder", L"DLLPath", recorder_path());
    }

    /// Has the mail program refuse a call, as in "MAPILogon=3"; an empty text has it refuse none.
    static void refuse(const wchar_t* call) { SetEnvironmentVariableW(L"QUILLOMAT_MAIL_REFUSE", call); }

    /// The calls the mail program has received since this was last asked.
    std::vector<std::string> calls() const {
        std::ifstream file(record() / "calls.txt");
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);) lines.push_back(line);
        file.close();
        std::filesystem::remove(record() / "calls.txt");
        return lines;
    }
    /// A part of the last mail, or a file that went with it.
    std::string sent(const char* part) const { return bytes(record() / part); }
    bool sent_a_file() const { return !std::filesystem::is_empty(record() / "files"); }

    void expect_requirements() {
        expect_message(
            L"Message",
            L"To send messages from Quillomat, you need an e-mail client such as Outlook Express, MS Outlook, "
            L"Netscape, Eudora, etc. You also need to have a POP3 e-mail account on one of these clients. You "
            L"cannot send e-mail from Quillomat if you use Hotmail or any other web based e-mail.");
    }

    RegistryOverride machine{HKEY_LOCAL_MACHINE};

  private:
    std::filesystem::path record() const { return folder.path() / "record"; }

    static std::wstring recorder_path() {
        wchar_t path[MAX_PATH];
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        return std::filesystem::path(path).replace_filename(L"mapi_recorder.dll").wstring();
    }
};

}  // namespace quillomat
