// A mail program for tests. In the folder that QUILLOMAT_MAIL_FOLDER names it leaves
//   calls.txt    a line for every call, with what matters of its arguments
//   mail\        of the last mail: address, name, subject and text (UTF-8 from the wide function, else as they came)
//   files\       of the last mail: a copy of each attached file, under the name the recipient sees
// QUILLOMAT_MAIL_REFUSE names a function and the number it answers instead of doing its work, as in "MAPILogon=3".

#include <windows.h>
// Needs the above.
#include <mapi.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace {

// What is missing in some compilers' headers.
struct WideRecipient {
    ULONG ulReserved;
    ULONG ulRecipClass;
    PWSTR lpszName;
    PWSTR lpszAddress;
    ULONG ulEIDSize;
    PVOID lpEntryID;
};

struct WideFile {
    ULONG ulReserved;
    ULONG flFlags;
    ULONG nPosition;
    PWSTR lpszPathName;
    PWSTR lpszFileName;
    PVOID lpFileType;
};

struct WideMessage {
    ULONG ulReserved;
    PWSTR lpszSubject;
    PWSTR lpszNoteText;
    PWSTR lpszMessageType;
    PWSTR lpszDateReceived;
    PWSTR lpszConversationID;
    FLAGS flFlags;
    WideRecipient* lpOriginator;
    ULONG nRecipCount;
    WideRecipient* lpRecips;
    ULONG nFileCount;
    WideFile* lpFiles;
};

constexpr LHANDLE only_session = 4711;
int sessions_open = 0;

std::wstring environment(const wchar_t* name) {
    wchar_t text[MAX_PATH]{};
    GetEnvironmentVariableW(name, text, MAX_PATH);
    return text;
}

std::filesystem::path folder() {
    return environment(L"QUILLOMAT_MAIL_FOLDER");
}

/// Records a call and answers the number it is to be refused with, or 0.
ULONG called(const std::string& function, const std::string& arguments) {
    std::ofstream(folder() / "calls.txt", std::ios::app | std::ios::binary) << function << arguments << '\n';
    const std::wstring refused = environment(L"QUILLOMAT_MAIL_REFUSE");
    const std::wstring wanted = std::wstring(function.begin(), function.end()) + L"=";
    return refused.starts_with(wanted) ? std::stoul(refused.substr(wanted.size())) : 0;
}

std::string bytes(const char* text) {
    return text ? text : "";
}

std::string bytes(const wchar_t* text) {
    if (!text) return {};
    std::string result(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), static_cast<int>(result.size()), nullptr, nullptr);
    result.pop_back();
    return result;
}

template <class Character>
void write(const char* name, const Character* text) {
    std::ofstream(folder() / "mail" / name, std::ios::binary) << bytes(text);
}

template <class File>
void keep_copy(const File& file) {
    const std::filesystem::path path(file.lpszPathName);
    const std::filesystem::path name = file.lpszFileName ? std::filesystem::path(file.lpszFileName) : path.filename();
    std::filesystem::copy_file(path, folder() / "files" / name);
}

template <class Message>
ULONG send(const char* function, LHANDLE session, ULONG_PTR owner, const Message& message, FLAGS flags) {
    const bool in_text = message.nFileCount > 0 && message.lpFiles[0].nPosition != 0xFFFFFFFF;
    const bool to_one = message.nRecipCount == 1 && message.lpRecips[0].ulRecipClass == MAPI_TO;
    const ULONG refusal =
        called(function, std::string(flags & MAPI_DIALOG ? " dialog" : "") + (to_one ? " to one" : "") +
                             (message.nFileCount > 0 ? " file" : "") + (in_text ? " in text" : "") +
                             (IsWindow(reinterpret_cast<HWND>(owner)) ? "" : " without owner"));
    if (refusal != 0) return refusal;
    if (session != only_session || sessions_open != 1) return MAPI_E_INVALID_SESSION;
    for (const char* part : {"mail", "files"}) {
        std::filesystem::remove_all(folder() / part);
        std::filesystem::create_directories(folder() / part);
    }
    write("address", message.lpRecips[0].lpszAddress);
    write("name", message.lpRecips[0].lpszName);
    write("subject", message.lpszSubject);
    write("text", message.lpszNoteText);
    for (ULONG index = 0; index < message.nFileCount; ++index) keep_copy(message.lpFiles[index]);
    return SUCCESS_SUCCESS;
}

}  // namespace

extern "C" {

ULONG WINAPI MAPILogon(ULONG_PTR, LPSTR profile, LPSTR, FLAGS flags, ULONG, LPLHANDLE session) {
    const ULONG refusal =
        called("MAPILogon", std::string(flags & MAPI_LOGON_UI ? " dialog" : "") +
                                (flags & MAPI_FORCE_DOWNLOAD ? " download" : "") +
                                (flags & MAPI_NEW_SESSION ? " new" : "") + (profile ? " profile" : ""));
    if (refusal != 0) return refusal;
    ++sessions_open;
    *session = only_session;
    return SUCCESS_SUCCESS;
}

ULONG WINAPI MAPILogoff(LHANDLE session, ULONG_PTR, FLAGS, ULONG) {
    const ULONG refusal = called("MAPILogoff", "");
    if (session != only_session || sessions_open != 1) return MAPI_E_INVALID_SESSION;
    --sessions_open;
    return refusal;
}

ULONG WINAPI MAPISendMail(LHANDLE session, ULONG_PTR owner, lpMapiMessage message, FLAGS flags, ULONG) {
    return send("MAPISendMail", session, owner, *message, flags);
}

ULONG WINAPI MAPISendMailW(LHANDLE session, ULONG_PTR owner, WideMessage* message, FLAGS flags, ULONG) {
    return send("MAPISendMailW", session, owner, *message, flags);
}

}  // extern "C"
