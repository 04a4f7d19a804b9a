#include "host/SettingsStore.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <sqlite3.h>
#include <thread>

#include "platform/DebugStream.h"

namespace {

// One prepared statement, finalized when it goes out of scope.
class Statement
{
public:
    Statement(sqlite3* database, const char* sql)
    {
        if (sqlite3_prepare_v2(database, sql, -1, &pStatement, nullptr) != SQLITE_OK) {
            dbstream << "SettingsStore: " << sqlite3_errmsg(database) << " in " << sql << dbendl;
            sqlite3_finalize(pStatement);
            pStatement = nullptr;
        }
    }
    ~Statement() { sqlite3_finalize(pStatement); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& Bind(int index, std::int64_t value)
    {
        if (pStatement) {
            sqlite3_bind_int64(pStatement, index, value);
        }
        return *this;
    }
    Statement& Bind(int index, const std::string& text)
    {
        if (pStatement) {
            sqlite3_bind_text(pStatement, index, text.data(), static_cast<int>(text.size()),
                              SQLITE_TRANSIENT);
        }
        return *this;
    }
    Statement& BindBytes(int index, const void* data, std::size_t size)
    {
        if (pStatement) {
            // A zero-length blob must not be bound from a null pointer, which would make NULL.
            if (size == 0) {
                sqlite3_bind_zeroblob(pStatement, index, 0);
            } else {
                sqlite3_bind_blob64(pStatement, index, data, size, SQLITE_TRANSIENT);
            }
        }
        return *this;
    }
    // SQLITE_ROW, SQLITE_DONE or an error code.
    int Step() { return pStatement ? sqlite3_step(pStatement) : SQLITE_ERROR; }
    bool Run() { return Step() == SQLITE_DONE; }

    std::int64_t Integer(int column) { return sqlite3_column_int64(pStatement, column); }
    std::string Text(int column)
    {
        const unsigned char* text = sqlite3_column_text(pStatement, column);
        int size = sqlite3_column_bytes(pStatement, column);
        return text ? std::string(reinterpret_cast<const char*>(text),
                                  static_cast<std::size_t>(size))
                    : std::string();
    }
    std::vector<std::uint8_t> Bytes(int column)
    {
        const void* data = sqlite3_column_blob(pStatement, column);
        int size = sqlite3_column_bytes(pStatement, column);
        const auto* bytes = static_cast<const std::uint8_t*>(data);
        return data ? std::vector<std::uint8_t>(bytes, bytes + size) : std::vector<std::uint8_t>();
    }

private:
    sqlite3_stmt* pStatement = nullptr;
};

const char* const kSchema = "CREATE TABLE IF NOT EXISTS keys("
                            " id INTEGER PRIMARY KEY,"
                            " parent INTEGER REFERENCES keys(id) ON DELETE CASCADE,"
                            " name TEXT NOT NULL COLLATE NOCASE,"
                            " written INTEGER NOT NULL DEFAULT 0,"
                            " UNIQUE(parent, name));"
                            "CREATE TABLE IF NOT EXISTS vals("
                            " key INTEGER NOT NULL REFERENCES keys(id) ON DELETE CASCADE,"
                            " name TEXT NOT NULL COLLATE NOCASE,"
                            " type INTEGER NOT NULL,"
                            " data BLOB NOT NULL,"
                            " PRIMARY KEY(key, name)) WITHOUT ROWID;"
                            "INSERT OR IGNORE INTO keys(id, parent, name) VALUES"
                            " (1, NULL, 'HKEY_LOCAL_MACHINE'), (2, NULL, 'HKEY_CURRENT_USER');"
                            "PRAGMA user_version = 1;";

std::int64_t Now()
{
    return static_cast<std::int64_t>(std::time(nullptr));
}

} // namespace

SettingsStore::SettingsStore(const std::string& file) : File(file)
{
    if (!Open()) {
        int code = pDatabase ? sqlite3_errcode(pDatabase) : SQLITE_CANTOPEN;
        sqlite3_close_v2(pDatabase);
        pDatabase = nullptr;
        if (code == SQLITE_NOTADB || code == SQLITE_CORRUPT) {
            // Keep the damaged file for whoever wants to look at it, and start afresh.
            std::string aside = File + ".broken";
            dbstream << "SettingsStore: " << File << " is damaged, moved to " << aside << dbendl;
            std::rename(File.c_str(), aside.c_str());
            std::remove((File + "-wal").c_str());
            std::remove((File + "-shm").c_str());
            if (!Open()) {
                sqlite3_close_v2(pDatabase);
                pDatabase = nullptr;
            }
        }
    }
    if (pDatabase == nullptr) {
        dbstream << "SettingsStore: cannot open " << File << dbendl;
    }
}

SettingsStore::~SettingsStore()
{
    sqlite3_close_v2(pDatabase);
}

bool SettingsStore::Open()
{
    if (sqlite3_open_v2(File.c_str(), &pDatabase,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX,
                        nullptr) != SQLITE_OK) {
        return false;
    }
    sqlite3_busy_timeout(pDatabase, 5000);
    // Foreign keys are off unless each connection asks; without them deleting a key would
    // leave its values behind.
    return Execute("PRAGMA foreign_keys = ON") && Execute("PRAGMA journal_mode = WAL") &&
           Execute("PRAGMA synchronous = NORMAL") && Begin() && Execute(kSchema) && Commit();
}

bool SettingsStore::Execute(const char* sql)
{
    // The busy timeout covers waiting for another writer, but SQLite answers "locked" at once,
    // without waiting, while a second process switches a new file to the write-ahead log or
    // recovers one; so a busy answer is tried again here within the same five seconds. Every
    // statement given here may run twice without harm.
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    for (;;) {
        char* error = nullptr;
        int result = sqlite3_exec(pDatabase, sql, nullptr, nullptr, &error);
        if (result == SQLITE_OK) {
            return true;
        }
        bool busy = (result & 0xFF) == SQLITE_BUSY || (result & 0xFF) == SQLITE_LOCKED;
        if (!busy || std::chrono::steady_clock::now() >= deadline) {
            dbstream << "SettingsStore: " << (error ? error : "error") << dbendl;
            sqlite3_free(error);
            return false;
        }
        sqlite3_free(error);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

bool SettingsStore::Begin()
{
    // IMMEDIATE takes the write lock at once, so two writers queue instead of deadlocking.
    return Execute("BEGIN IMMEDIATE");
}

bool SettingsStore::Commit()
{
    if (Execute("COMMIT")) {
        return true;
    }
    Rollback();
    return false;
}

void SettingsStore::Rollback()
{
    if (!sqlite3_get_autocommit(pDatabase)) {
        sqlite3_exec(pDatabase, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

bool SettingsStore::IsValidKeyName(const std::string& name)
{
    return !name.empty() && name.size() <= kLongestKeyName &&
           name.find('\\') == std::string::npos && name.find('\0') == std::string::npos;
}

bool SettingsStore::KeyExists(KeyId key)
{
    if (!IsOpen()) {
        return false;
    }
    Statement query(pDatabase, "SELECT 1 FROM keys WHERE id = ?");
    return query.Bind(1, key).Step() == SQLITE_ROW;
}

SettingsStore::Status SettingsStore::FindChild(KeyId parent, const std::string& name, KeyId& child)
{
    Statement query(pDatabase, "SELECT id FROM keys WHERE parent = ? AND name = ?");
    int step = query.Bind(1, parent).Bind(2, name).Step();
    if (step == SQLITE_ROW) {
        child = query.Integer(0);
        return Status::Ok;
    }
    return step == SQLITE_DONE ? Status::NotFound : Status::Failed;
}

SettingsStore::Status SettingsStore::Touch(KeyId key)
{
    Statement update(pDatabase, "UPDATE keys SET written = ? WHERE id = ?");
    return update.Bind(1, Now()).Bind(2, key).Run() ? Status::Ok : Status::Failed;
}

SettingsStore::Status SettingsStore::CreatePath(KeyId parent, const std::vector<std::string>& names,
                                                KeyId& key, bool& created)
{
    created = false;
    for (const std::string& name : names) {
        if (!IsValidKeyName(name)) {
            return Status::BadName;
        }
    }
    if (!IsOpen() || !Begin()) {
        return Status::Failed;
    }
    if (!KeyExists(parent)) {
        Rollback();
        return Status::KeyDeleted;
    }
    KeyId current = parent;
    for (const std::string& name : names) {
        KeyId child = 0;
        Status found = FindChild(current, name, child);
        if (found == Status::NotFound) {
            Statement insert(pDatabase, "INSERT INTO keys(parent, name, written) VALUES (?, ?, ?)");
            if (!insert.Bind(1, current).Bind(2, name).Bind(3, Now()).Run()) {
                Rollback();
                return Status::Failed;
            }
            child = sqlite3_last_insert_rowid(pDatabase);
            created = true;
        } else if (found == Status::Ok) {
            created = false;
        } else {
            Rollback();
            return Status::Failed;
        }
        current = child;
    }
    if (!Commit()) {
        created = false;
        return Status::Failed;
    }
    key = current;
    return Status::Ok;
}

SettingsStore::Status SettingsStore::OpenPath(KeyId parent, const std::vector<std::string>& names,
                                              KeyId& key)
{
    for (const std::string& name : names) {
        if (!IsValidKeyName(name)) {
            return Status::BadName;
        }
    }
    if (!IsOpen()) {
        return Status::Failed;
    }
    if (!KeyExists(parent)) {
        return Status::KeyDeleted;
    }
    KeyId current = parent;
    for (const std::string& name : names) {
        Status found = FindChild(current, name, current);
        if (found != Status::Ok) {
            return found;
        }
    }
    key = current;
    return Status::Ok;
}

SettingsStore::Status SettingsStore::SetValue(KeyId key, const std::string& name,
                                              std::uint32_t type, const void* data,
                                              std::size_t size)
{
    if (name.size() > kLongestValueName || name.find('\0') != std::string::npos) {
        return Status::BadName;
    }
    if (!IsOpen() || !Begin()) {
        return Status::Failed;
    }
    if (!KeyExists(key)) {
        Rollback();
        return Status::KeyDeleted;
    }
    Statement write(pDatabase,
                    "INSERT OR REPLACE INTO vals(key, name, type, data) VALUES (?, ?, ?, ?)");
    write.Bind(1, key)
        .Bind(2, name)
        .Bind(3, static_cast<std::int64_t>(type))
        .BindBytes(4, data, size);
    if (!write.Run() || Touch(key) != Status::Ok) {
        Rollback();
        return Status::Failed;
    }
    return Commit() ? Status::Ok : Status::Failed;
}

SettingsStore::Status SettingsStore::GetValue(KeyId key, const std::string& name, Value& value)
{
    if (!IsOpen()) {
        return Status::Failed;
    }
    Statement query(pDatabase, "SELECT type, data FROM vals WHERE key = ? AND name = ?");
    int step = query.Bind(1, key).Bind(2, name).Step();
    if (step == SQLITE_ROW) {
        value.Type = static_cast<std::uint32_t>(query.Integer(0));
        value.Data = query.Bytes(1);
        return Status::Ok;
    }
    if (step != SQLITE_DONE) {
        return Status::Failed;
    }
    return KeyExists(key) ? Status::NotFound : Status::KeyDeleted;
}

SettingsStore::Status SettingsStore::DeleteValue(KeyId key, const std::string& name)
{
    if (!IsOpen() || !Begin()) {
        return Status::Failed;
    }
    if (!KeyExists(key)) {
        Rollback();
        return Status::KeyDeleted;
    }
    Statement erase(pDatabase, "DELETE FROM vals WHERE key = ? AND name = ?");
    if (!erase.Bind(1, key).Bind(2, name).Run()) {
        Rollback();
        return Status::Failed;
    }
    if (sqlite3_changes(pDatabase) == 0) {
        Rollback();
        return Status::NotFound;
    }
    if (Touch(key) != Status::Ok) {
        Rollback();
        return Status::Failed;
    }
    return Commit() ? Status::Ok : Status::Failed;
}

SettingsStore::Status SettingsStore::GetSubkey(KeyId key, std::uint32_t index, std::string& name,
                                               std::int64_t& written)
{
    if (!IsOpen()) {
        return Status::Failed;
    }
    Statement query(pDatabase, "SELECT name, written FROM keys WHERE parent = ?"
                               " ORDER BY name COLLATE NOCASE LIMIT 1 OFFSET ?");
    int step = query.Bind(1, key).Bind(2, static_cast<std::int64_t>(index)).Step();
    if (step == SQLITE_ROW) {
        name = query.Text(0);
        written = query.Integer(1);
        return Status::Ok;
    }
    if (step != SQLITE_DONE) {
        return Status::Failed;
    }
    return KeyExists(key) ? Status::NoMoreItems : Status::KeyDeleted;
}

SettingsStore::Status SettingsStore::DeleteKey(KeyId parent, const std::vector<std::string>& names)
{
    if (!IsOpen() || !Begin()) {
        return Status::Failed;
    }
    KeyId target = parent;
    Status found = OpenPath(parent, names, target);
    if (found != Status::Ok) {
        Rollback();
        return found;
    }
    if (target == kLocalMachine || target == kCurrentUser) {
        Rollback();
        return Status::HasSubkeys;
    }
    Statement children(pDatabase, "SELECT 1 FROM keys WHERE parent = ? LIMIT 1");
    int step = children.Bind(1, target).Step();
    if (step != SQLITE_DONE) {
        Rollback();
        return step == SQLITE_ROW ? Status::HasSubkeys : Status::Failed;
    }
    Statement erase(pDatabase, "DELETE FROM keys WHERE id = ?");
    if (!erase.Bind(1, target).Run()) {
        Rollback();
        return Status::Failed;
    }
    return Commit() ? Status::Ok : Status::Failed;
}

bool SettingsStore::CheckIntegrity()
{
    if (!IsOpen()) {
        return false;
    }
    Statement integrity(pDatabase, "PRAGMA integrity_check");
    if (integrity.Step() != SQLITE_ROW || integrity.Text(0) != "ok") {
        return false;
    }
    Statement keys(pDatabase, "PRAGMA foreign_key_check");
    return keys.Step() == SQLITE_DONE;
}
