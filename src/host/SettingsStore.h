#pragma once
// A durable tree of named keys holding named, typed values: the store behind the registry
// calls, kept in one SQLite database file.
//
// Keys form a tree below fixed roots; names of keys and of values ignore case and keep the
// case they were created with. A value is a type number and a run of bytes. Every change is
// one transaction, so a process killed at any moment leaves each value either as it was or
// as it was written, never half of it. The database runs in write-ahead-log mode: readers in
// other processes see the last committed state while a writer works, and a second writer
// waits for the first (up to five seconds) instead of failing.
//
// The store does not know the registry's handles or error codes; platform/Registry.cpp maps
// them onto it.
#include <cstdint>
#include <string>
#include <vector>

struct sqlite3;

class SettingsStore
{
public:
    using KeyId = std::int64_t;

    // The fixed roots of the tree.
    static constexpr KeyId kLocalMachine = 1;
    static constexpr KeyId kCurrentUser = 2;
    // Key names are at most this long, value names at most kLongestValueName.
    static constexpr std::size_t kLongestKeyName = 255;
    static constexpr std::size_t kLongestValueName = 16383;

    enum class Status
    {
        Ok,
        NotFound,    // no such key or value
        KeyDeleted,  // the key was deleted after it was opened
        BadName,     // an empty or too long name, or one with a backslash
        HasSubkeys,  // a key with subkeys cannot be deleted
        NoMoreItems, // an index past the last subkey
        Failed       // the database could not be read or written
    };

    struct Value
    {
        std::uint32_t Type = 0;
        std::vector<std::uint8_t> Data;
    };

    // Opens the database file, creating it and its tables when missing. A file that is not a
    // database is moved aside (its name gains ".broken") and a new one is begun.
    explicit SettingsStore(const std::string& file);
    ~SettingsStore();
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    bool IsOpen() const { return pDatabase != nullptr; }
    const std::string& GetFile() const { return File; }

    // Walks `names` down from `parent`, making the keys that are missing, all in one
    // transaction. `created` tells whether the last key was new. No names gives `parent`.
    Status CreatePath(KeyId parent, const std::vector<std::string>& names, KeyId& key,
                      bool& created);
    // Walks `names` down from `parent` without making anything.
    Status OpenPath(KeyId parent, const std::vector<std::string>& names, KeyId& key);
    bool KeyExists(KeyId key);

    Status SetValue(KeyId key, const std::string& name, std::uint32_t type, const void* data,
                    std::size_t size);
    Status GetValue(KeyId key, const std::string& name, Value& value);
    Status DeleteValue(KeyId key, const std::string& name);

    // The name of subkey number `index`, counting from 0 in the order of names ignoring case,
    // and the time it was last written, in seconds since 1970.
    Status GetSubkey(KeyId key, std::uint32_t index, std::string& name, std::int64_t& written);
    // Deletes the key at the end of `names` below `parent`, with its values; refused while it
    // has subkeys. No names deletes `parent` itself; the roots cannot be deleted.
    Status DeleteKey(KeyId parent, const std::vector<std::string>& names);

    // SQLite's own check of the whole file.
    bool CheckIntegrity();

    static bool IsValidKeyName(const std::string& name);

private:
    bool Open();
    bool Execute(const char* sql);
    bool Begin();
    bool Commit();
    void Rollback();
    Status FindChild(KeyId parent, const std::string& name, KeyId& child);
    Status Touch(KeyId key);

    std::string File;
    sqlite3* pDatabase = nullptr;
};
