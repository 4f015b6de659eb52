#pragma once

#include <optional>
#include <vector>

#include "support/desktop.h"
#include "support/files.h"
#include "support/wait.h"

namespace quillomat {

/// The program, in a folder of its own or where it lies, looked at and driven from outside. Whatever a test leaves
/// running is ended.
class Program {
  public:
    /// The executable that is copied into the program's own folder.
    static std::filesystem::path executable;

    Program();
    /// The program as it lies in a folder, which stays as it is.
    explicit Program(std::filesystem::path folder) : folder_(std::move(folder)) {}
    ~Program() { end(); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::filesystem::path database() const { return folder_ / L"Cheats.dat"; }
    void write_database(std::string_view bytes) const { write_bytes(database(), bytes); }
    std::string read_database() const { return bytes_of(database()); }

    /// Starts the program from another folder than its own; again, when it has ended.
    void start(const std::wstring& arguments = {});
    /// Ends it at once, if it is running.
    void end();
    const PROCESS_INFORMATION& process() const { return process_; }
    bool running() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }
    /// Waits for the end and returns the exit code; 259 when it does not come.
    DWORD exit_code() const;

    /// The visible window of a class; null when there is none.
    HWND find(const wchar_t* window_class) const;
    /// Goes on from window to window, as with the keyboard, until the viewer is there or a message box. False when
    /// neither comes.
    bool reach_viewer();
    /// Closes the main screen by its title bar, and with it everything.
    void close() const { PostMessageW(find(L"frmMain"), WM_CLOSE, 0, 0); }
    HWND viewer() const { return find(L"frmCtlView"); }

    /// The text of the open message box, behind its title and a colon; empty when there is none.
    std::wstring message() const;
    /// Answers it, and waits until it has gone.
    bool dismiss_message() const;

  private:
    std::optional<TemporaryFolder> own_folder_;
    std::filesystem::path folder_;
    PROCESS_INFORMATION process_{};
};

/// The games in the list of a viewer.
std::vector<std::wstring> games_of(HWND viewer);
/// The games in the list of search results.
std::vector<std::wstring> results_of(HWND viewer);
/// Selects a game as a click does and returns the cheats that are shown then.
std::wstring cheats_of(HWND viewer, int game);

}  // namespace quillomat
