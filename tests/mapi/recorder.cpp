// A mail program for tests. In the folder that QUILLOMAT_MAIL_FOLDER names it leaves
//   calls.txt    a line for every call, with what matters of its arguments
//   mail\        of the last mail: address, name, subject and text, in UTF-8
//   files\       of the last mail: a copy of each attached file, under the name the recipient sees
// QUILLOMAT_MAIL_REFUSE names a function and the number it answers instead of doing its work, as in "MAPILogon=3".

#include <windows.h>
// Needs the above.
#include <mapi.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

// What is missing in some compilers' headers.
struct WideRecipient {
    ULONG reserved, kind;
    PWSTR name, address;
    ULONG entry_size;
    PVOID entry;
};

struct WideFile {
    ULONG reserved, flags, position;
    PWSTR path, name;
    PVOID type;
};

struct WideMessage {
    ULONG reserved;
    PWSTR subject, text, type, date_received, conversation;
    FLAGS flags;
    WideRecipient* originator;
    ULONG recipient_count;
    WideRecipient* recipients;
    ULONG file_count;
    WideFile* files;
};

constexpr LHANDLE only_session = 4711;
int sessions_open = 0;

std::wstring environment(const wchar_t* name) {
    wchar_t text[MAX_PATH]{};
    GetEnvironmentVariableW(name, text, MAX_PATH);
    return text;
}

fs::path folder() {
    return environment(L"QUILLOMAT_MAIL_FOLDER");
}

/// Records a call and answers the number it is to be refused with, or 0.
ULONG called(const std::string& function, const std::string& arguments) {
    std::ofstream(folder() / "calls.txt", std::ios::app | std::ios::binary) << function << arguments << '\n';
    const std::wstring refused = environment(L"QUILLOMAT_MAIL_REFUSE");
    const std::wstring wanted = std::wstring(function.begin(), function.end()) + L"=";
    return refused.starts_with(wanted) ? std::stoul(refused.substr(wanted.size())) : 0;
}

void write(const char* name, const wchar_t* text) {
    const std::u8string bytes = fs::path(text ? text : L"").u8string();
    std::ofstream(folder() / "mail" / name, std::ios::binary) << std::string(bytes.begin(), bytes.end());
}

std::string if_so(bool condition, const char* words) {
    return condition ? words : "";
}

}  // namespace

extern "C" {

ULONG WINAPI MAPILogon(ULONG_PTR, LPSTR profile, LPSTR, FLAGS flags, ULONG, LPLHANDLE session) {
    const ULONG refusal =
        called("MAPILogon", if_so(flags & MAPI_LOGON_UI, " dialog") + if_so(flags & MAPI_FORCE_DOWNLOAD, " download") +
                                if_so(flags & MAPI_NEW_SESSION, " new") + if_so(profile, " profile"));
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

ULONG WINAPI MAPISendMailW(LHANDLE session, ULONG_PTR owner, WideMessage* message, FLAGS flags, ULONG) {
    const bool to_one = message->recipient_count == 1 && message->recipients[0].kind == MAPI_TO;
    const bool with_file = message->file_count > 0;
    const ULONG refusal = called(
        "MAPISendMailW", if_so(flags & MAPI_DIALOG, " dialog") + if_so(to_one, " to one") + if_so(with_file, " file") +
                             if_so(with_file && message->files[0].position != 0xFFFFFFFF, " in text") +
                             if_so(!IsWindow(reinterpret_cast<HWND>(owner)), " without owner"));
    if (refusal != 0) return refusal;
    if (session != only_session || sessions_open != 1) return MAPI_E_INVALID_SESSION;
    for (const char* part : {"mail", "files"}) {
        fs::remove_all(folder() / part);
        fs::create_directories(folder() / part);
    }
    write("address", message->recipients[0].address);
    write("name", message->recipients[0].name);
    write("subject", message->subject);
    write("text", message->text);
    for (ULONG index = 0; index < message->file_count; ++index) {
        const WideFile& file = message->files[index];
        fs::copy_file(file.path,
                      folder() / "files" / (file.name ? fs::path(file.name) : fs::path(file.path).filename()));
    }
    return SUCCESS_SUCCESS;
}

}  // extern "C"
