// Appends the player's own games to a new database: join_databases NEW OLD INSTALLED JOINED
//
// The first INSTALLED bytes of OLD were installed; the rest are the player's. JOINED consists of the games of NEW,
// except those that the player has under the same name, and of the player's bytes unchanged. The exit code is the
// number of bytes in JOINED that come from NEW. It is 0, and JOINED is not written, if anything is wrong.

#include <io.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "database/catalogue.h"
#include "database/record.h"

namespace {

using quillomat::record_marker_length;

// A game in the bytes of a file. Bytes are compared and copied without decoding them.
struct Record {
    std::string_view bytes;
    std::string_view name;
};

// Returns the games of a database, or nothing if it contains anything that the program would not have written.
std::optional<std::vector<Record>> records_of(std::string_view database) {
    std::vector<Record> records;
    std::size_t record_start = 0;
    for (std::size_t line_start = 0; line_start < database.size();) {
        const std::size_t line_end = database.find('\r', line_start);
        if (line_end == std::string_view::npos || database.substr(line_end, 2) != "\r\n") return std::nullopt;
        const std::string_view line = database.substr(line_start, line_end - line_start);
        line_start = line_end + 2;
        if (!line.starts_with(std::string(record_marker_length, '$'))) continue;
        if (line.size() < record_marker_length + 2) return std::nullopt;  // no name
        records.push_back(
            {database.substr(record_start, line_start - record_start), line.substr(record_marker_length + 1)});
        record_start = line_start;
    }
    // The text of a game without a name line.
    if (record_start != database.size()) return std::nullopt;
    return records;
}

// Returns the part of a new database that goes before the player's games; empty if joining them is not safe.
std::string part_before(std::string_view new_database, std::string_view installed, std::string_view own) {
    const auto new_records = records_of(new_database);
    const auto own_records = records_of(own);
    if (!new_records || !own_records || !records_of(installed)) return {};
    std::set<std::string_view> own_names;
    for (const Record& record : *own_records) own_names.insert(record.name);
    std::string part;
    std::size_t count = own_records->size();
    for (const Record& record : *new_records) {
        if (own_names.contains(record.name)) continue;
        part += record.bytes;
        ++count;
    }
    return count <= quillomat::Catalogue::slot_count ? part : std::string();
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

std::string read(const wchar_t* path) {
    const File file(_wfopen(path, L"rb"));
    if (!file) throw std::runtime_error("cannot be opened");
    std::string bytes(static_cast<std::size_t>(_filelengthi64(_fileno(file.get()))), '\0');
    const std::size_t length = std::fread(bytes.data(), 1, bytes.size(), file.get());
    if (length != bytes.size()) throw std::runtime_error("cannot be read");
    return bytes;
}

// Returns true once all bytes are on the disk, or false if writing fails.
bool write(const wchar_t* path, std::string_view bytes) {
    const File file(_wfopen(path, L"wb"));
    return file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
           std::fflush(file.get()) == 0 && _commit(_fileno(file.get())) == 0;
}

int join(wchar_t** arguments) {
    const std::string new_database = read(arguments[1]);
    const std::string old_database = read(arguments[2]);
    const std::size_t installed = std::stoul(arguments[3]);
    if (installed > old_database.size()) return 0;
    const std::string_view own = std::string_view(old_database).substr(installed);
    const std::string part = part_before(new_database, std::string_view(old_database).substr(0, installed), own);
    if (part.empty()) return 0;
    if (!write(arguments[4], part + std::string(own))) {
        _wremove(arguments[4]);
        return 0;
    }
    return static_cast<int>(part.size());
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    try {
        return count == 5 ? join(arguments) : 0;
    } catch (const std::exception&) {
        return 0;
    }
}
