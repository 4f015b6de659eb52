#pragma once

#include <string>
#include <vector>

namespace quillomat {

/// What a drive is.
enum class DriveKind { Fixed, Removable, Optical, Network, Memory };

/// A drive of the system.
struct Drive {
    std::wstring root;  ///< such as "C:\"
    DriveKind kind = DriveKind::Fixed;
    /// The name its disk was given; known of fixed disks only, because the others may have to start.
    std::wstring label;

    bool operator==(const Drive&) const = default;
};

/// The drives of the system in the order of their letters. Asks none that could keep the program waiting.
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

/// The folder the program was started in, or that it was led to since.
std::wstring current_folder();

}  // namespace quillomat
