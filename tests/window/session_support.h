#pragma once

#include "common/session.h"
#include "registry_support.h"
#include "support.h"

namespace quillomat {

/// Windows of the program with files and settings of the test's own.
class SessionTest : public WindowTest {
  protected:
    SessionTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
    }

    void write(const std::filesystem::path& name, std::string_view bytes) const { folder.write(name, bytes); }
    /// The content of a file; empty when there is none.
    std::string bytes(const std::filesystem::path& name) const { return folder.read(name); }
    bool exists(const std::filesystem::path& name) const { return std::filesystem::exists(folder.path() / name); }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
};

}  // namespace quillomat
