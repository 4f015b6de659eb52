#pragma once

#include <optional>
#include <vector>

#include "support/desktop.h"
#include "support/files.h"
#include "support/wait.h"

namespace quillomat {

/// The program in a process of its own, read and driven from outside as automation does. The destructor ends the
/// process.
class Program {
  public:
    /// The executable under test.
    static std::filesystem::path executable;

    /// Copies the executable into a temporary folder.
    Program();
    /// Uses the program as it is installed in a folder.
    explicit Program(std::filesystem::path folder) : folder_(std::move(folder)) {}
    ~Program() { end(); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::filesystem::path database() const { return folder_ / L"Cheats.dat"; }
    void write_database(std::string_view bytes) const { write_bytes(database(), bytes); }
    std::string read_database() const { return bytes_of(database()); }

    /// Starts the program with another current folder than its own, after ending a running one.
    void start(const std::wstring& arguments = {});
    /// Kills the program if it is running.
    void end();
    const PROCESS_INFORMATION& process() const { return process_; }
    bool running() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }
    /// Waits for the program to end and returns its exit code; 259 (STILL_ACTIVE) if it does not end.
    DWORD exit_code() const;

    /// Returns the program's visible window of a class; null if there is none.
    HWND find(const wchar_t* window_class) const;
    /// Goes on from the splash and from the main screen, until the viewer or a message box is open. Returns false if
    /// neither opens.
    bool reach_viewer() const;
    /// Closes the main screen, and with it all windows.
    void close() const { PostMessageW(find(L"frmMain"), WM_CLOSE, 0, 0); }
    HWND viewer() const { return find(L"frmCtlView"); }

    /// Returns title, ": " and text of the open message box; empty if there is none.
    std::wstring message() const;
    /// Answers the message box with OK and waits until it has closed.
    bool dismiss_message() const;

  private:
    std::optional<TemporaryFolder> own_folder_;
    std::filesystem::path folder_;
    PROCESS_INFORMATION process_{};
};

/// Returns the games in the viewer's full list.
std::vector<std::wstring> games_of(HWND viewer);
/// Returns the games in the viewer's list of search results.
std::vector<std::wstring> results_of(HWND viewer);

}  // namespace quillomat
