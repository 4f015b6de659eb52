#include "win/mail_client.h"

#include "text/error.h"
#include "win/code_page.h"
#include "win/handle.h"

namespace quillomat {
namespace {

// The structures of Simple MAPI, for its narrow and its wide functions. They are declared here because not every
// compiler's headers have the wide ones.
template <class Character>
struct MapiRecipient {
    ULONG reserved;
    ULONG kind;
    const Character* name;
    const Character* address;
    ULONG entry_size;
    void* entry;
};

template <class Character>
struct MapiFile {
    ULONG reserved;
    ULONG flags;
    ULONG position;
    const Character* path;
    const Character* name;
    void* type;
};

template <class Character>
struct MapiMessage {
    ULONG reserved;
    const Character* subject;
    const Character* text;
    const Character* type;
    const Character* date_received;
    const Character* conversation;
    ULONG flags;
    MapiRecipient<Character>* originator;
    ULONG recipient_count;
    MapiRecipient<Character>* recipients;
    ULONG file_count;
    MapiFile<Character>* files;
};

using LogonFunction = ULONG WINAPI(ULONG_PTR owner, const char* profile, const char* password, ULONG flags,
                                   ULONG reserved, std::uintptr_t* session);
using LogoffFunction = ULONG WINAPI(std::uintptr_t session, ULONG_PTR owner, ULONG flags, ULONG reserved);
template <class Character>
using SendFunction = ULONG WINAPI(std::uintptr_t session, ULONG_PTR owner, MapiMessage<Character>* message, ULONG flags,
                                  ULONG reserved);

constexpr ULONG show_logon_dialog = 0x1;
constexpr ULONG kind_to = 1;
constexpr ULONG outside_of_text = 0xFFFFFFFF;
// MAPI_FORCE_UNICODE: a mail program that knows no Unicode refuses the message instead of replacing characters.
constexpr ULONG keep_every_character = 0x40000;

[[noreturn]] void fail(MailResult result) {
    throw Error(ErrorCode::MailFailure, mail_failure_description(result));
}

[[noreturn]] void fail_without_mail_program() {
    throw Error(ErrorCode::MailFailure, no_mail_program_description());
}

template <class Function>
Function* find(HMODULE library, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// Returns true if a mail program with a MAPI library is registered below `root`.
bool is_registered_below(HKEY root) {
    RegistryKey programs;
    if (RegOpenKeyExW(root, L"Software\\Clients\\Mail", 0, KEY_READ, programs.receive()) != ERROR_SUCCESS) return false;
    wchar_t name[256];
    DWORD length = ARRAYSIZE(name);
    for (DWORD index = 0;
         RegEnumKeyExW(programs.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++index, length = ARRAYSIZE(name)) {
        for (const wchar_t* value : {L"DLLPath", L"DLLPathEx", L"MSIComponentID"}) {
            if (RegGetValueW(programs.get(), name, value, RRF_RT_ANY, nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
                return true;
            }
        }
    }
    return false;
}

// Loads the library of Windows that calls the user's default mail program.
HMODULE load_library() {
    // If no mail program is registered, mapi32.dll would first show a message box of its own.
    if (!is_registered_below(HKEY_CURRENT_USER) && !is_registered_below(HKEY_LOCAL_MACHINE)) {
        fail_without_mail_program();
    }
    const HMODULE library = LoadLibraryExW(L"mapi32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (!library) fail_without_mail_program();
    return library;
}

// The texts of a mail in the encoding of one of the two send functions.
template <class Text>
struct Texts {
    Text address, name, subject, text, attachment;
};

template <class Text>
MailResult send_with(SendFunction<typename Text::value_type>* function, std::uintptr_t session, HWND owner,
                     const Texts<Text>& texts, ULONG flags) {
    using Character = typename Text::value_type;
    MapiRecipient<Character> recipient{};
    recipient.kind = kind_to;
    recipient.name = texts.name.c_str();
    recipient.address = texts.address.c_str();
    MapiFile<Character> file{};
    file.position = outside_of_text;
    file.path = texts.attachment.c_str();
    MapiMessage<Character> message{};
    message.subject = texts.subject.c_str();
    message.text = texts.text.c_str();
    message.recipient_count = 1;
    message.recipients = &recipient;
    if (!texts.attachment.empty()) {
        message.file_count = 1;
        message.files = &file;
    }
    return MailResult{function(session, reinterpret_cast<ULONG_PTR>(owner), &message, flags, 0)};
}

Texts<std::string> in_system_code_page(const Mail& mail) try {
    return {encode(mail.address), encode(mail.name), encode(mail.subject), encode(mail.text), encode(mail.attachment)};
} catch (const Error& error) {
    if (error.code() == ErrorCode::InvalidArgument) fail(MailResult::UnicodeNotSupported);
    throw;
}

}  // namespace

MailSession::MailSession(HWND owner) : owner_(owner), library_(load_library()) {
    const auto log_on = find<LogonFunction>(library_, "MAPILogon");
    auto result = MailResult::NotSupported;
    if (log_on) {
        result =
            MailResult{log_on(reinterpret_cast<ULONG_PTR>(owner), nullptr, nullptr, show_logon_dialog, 0, &session_)};
    }
    if (result == MailResult::Success) return;
    // Unload the library: it looks for a mail program only once, and the user may set one up before the next attempt.
    FreeLibrary(library_);
    fail(result);
}

MailSession::~MailSession() {
    // Without a call of `end`, an exception is about to tell the user what failed; the result adds nothing.
    if (!ended_) sign_off();
}

void MailSession::end() {
    const MailResult result = sign_off();
    if (result != MailResult::Success) throw Error(ErrorCode::MailFailure, sign_off_failure_description(result));
}

MailResult MailSession::sign_off() {
    ended_ = true;
    // The library stays loaded, because threads of some mail programs continue to run in it.
    const auto log_off = find<LogoffFunction>(library_, "MAPILogoff");
    if (!log_off) return MailResult::NotSupported;
    return MailResult{log_off(session_, reinterpret_cast<ULONG_PTR>(owner_), 0, 0)};
}

void MailSession::send(const Mail& mail) {
    auto result = MailResult::UnicodeNotSupported;
    if (const auto send_wide = find<SendFunction<wchar_t>>(library_, "MAPISendMailW")) {
        const Texts<std::wstring> texts{mail.address, mail.name, mail.subject, mail.text, mail.attachment};
        result = send_with(send_wide, session_, owner_, texts, keep_every_character);
    }
    if (result == MailResult::UnicodeNotSupported || result == MailResult::NotSupported) {
        const auto send_narrow = find<SendFunction<char>>(library_, "MAPISendMail");
        if (!send_narrow) fail(MailResult::NotSupported);
        result = send_with(send_narrow, session_, owner_, in_system_code_page(mail), 0);
    }
    if (result != MailResult::Success) fail(result);
}

}  // namespace quillomat
