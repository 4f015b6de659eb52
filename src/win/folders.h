#pragma once

#include <string>
#include <vector>

#include "win/picture.h"

namespace quillomat {

/// The kind of a drive.
enum class DriveKind { Fixed, Removable, Optical, Network, Memory };

/// A drive letter of the system.
struct Drive {
    std::wstring root;  ///< such as "C:\"
    DriveKind kind = DriveKind::Fixed;
    /// The label of a fixed disk; empty for other drives, which might have to spin up to be read.
    std::wstring label;

    bool operator==(const Drive&) const = default;
};

/// Returns the drives in the order of their letters. Accesses no drive that could keep the program waiting.
std::vector<Drive> drives();

/// The names in a folder without hidden and system ones, sorted ignoring case and with numbers by their value.
struct FolderContent {
    std::vector<std::wstring> folders;
    std::vector<std::wstring> files;
};

/// Lists a folder. Throws `Error`: PathNotFound, PermissionDenied, DiskNotReady, ... May take more than half a minute
/// if a computer or a drive does not answer.
FolderContent list_folder(const std::wstring& path);

/// Returns false for a folder on a drive that may be slow to answer, such as a network or a removable drive.
bool answers_at_once(const std::wstring& path);

/// How a folder is drawn.
enum class FolderState { Closed, Open };

/// Returns the shell's icon for a folder, to be drawn `size` pixels large; null if there is none.
Icon folder_icon(FolderState state, int size);

/// Returns the current folder of the process.
std::wstring current_folder();

}  // namespace quillomat
