#pragma once

#include <string>
#include <vector>

#include "win/picture.h"

namespace quillomat {

/// The kind of a drive.
enum class DriveKind { Fixed, Removable, Optical, Network, Memory };

/// A drive of the system.
struct Drive {
    std::wstring root;  ///< such as "C:\"
    DriveKind kind = DriveKind::Fixed;
    /// The label of the disk; read from fixed disks only, because others may have to start first.
    std::wstring label;

    bool operator==(const Drive&) const = default;
};

/// The drives of the system in the order of their letters. Touches no drive that could keep the program waiting.
std::vector<Drive> drives();

/// What a folder holds, without what is hidden, in the order a user expects.
struct FolderContent {
    std::vector<std::wstring> folders;
    std::vector<std::wstring> files;
};

/// Looks into a folder. Throws `Error`: PathNotFound, PermissionDenied, DiskNotReady, ... Takes half a minute and more
/// where a computer or a drive has gone.
FolderContent list_folder(const std::wstring& path);

/// False for a folder on a drive that may be far away or asleep.
bool answers_at_once(const std::wstring& path);

/// How a folder is drawn.
enum class FolderState { Closed, Open };

/// Returns the system's icon of a folder for a size in pixels; null if there is none.
Icon folder_icon(FolderState state, int size);

/// The current folder of the process.
std::wstring current_folder();

}  // namespace quillomat
