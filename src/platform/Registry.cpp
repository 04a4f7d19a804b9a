#include "platform/Registry.h"

#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <unistd.h>

#include "host/SettingsStore.h"
#include "host/UserConfigDirectory.h"

HKEY const HKEY_CURRENT_USER = reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(0x80000001u));
HKEY const HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(0x80000002u));

namespace {

using Status = SettingsStore::Status;

struct OpenKey
{
    SettingsStore::KeyId Key = 0;
    REGSAM Access = 0;
};

// The open store and the handles given out on it. A handle is a number, never a pointer
// that is followed, so a stale or made-up handle is found out instead of read through.
struct RegistryState
{
    std::mutex Lock;
    std::unique_ptr<SettingsStore> pStore;
    std::map<std::uintptr_t, OpenKey> Handles;
    std::uintptr_t NextHandle = 0x1000;
    bool bReadOnly = false;
};

RegistryState& State()
{
    static RegistryState state;
    return state;
}

std::string StoreFile(bool create)
{
    return UserConfigDirectory(create) + "/registry.db";
}

// The store for the current configuration directory, opened or reopened as needed; null when
// it cannot be opened.
SettingsStore* Store(RegistryState& state)
{
    std::string file = StoreFile(!state.bReadOnly);
    if (state.bReadOnly && (!state.pStore || state.pStore->GetFile() != file) &&
        ::access(file.c_str(), F_OK) != 0) {
        state.pStore.reset();
        return nullptr;
    }
    if (!state.pStore || state.pStore->GetFile() != file) {
        state.Handles.clear();
        state.pStore = std::make_unique<SettingsStore>(file);
    } else if (!state.pStore->IsOpen()) {
        state.pStore = std::make_unique<SettingsStore>(file);
    }
    return state.pStore->IsOpen() ? state.pStore.get() : nullptr;
}

bool Resolve(RegistryState& state, HKEY key, OpenKey& open)
{
    if (key == HKEY_LOCAL_MACHINE) {
        open = {SettingsStore::kLocalMachine, KEY_ALL_ACCESS};
        return true;
    }
    if (key == HKEY_CURRENT_USER) {
        open = {SettingsStore::kCurrentUser, KEY_ALL_ACCESS};
        return true;
    }
    auto found = state.Handles.find(reinterpret_cast<std::uintptr_t>(key));
    if (found == state.Handles.end()) {
        return false;
    }
    open = found->second;
    return true;
}

HKEY NewHandle(RegistryState& state, SettingsStore::KeyId key, REGSAM access)
{
    std::uintptr_t number = state.NextHandle;
    state.NextHandle += 4;
    state.Handles[number] = {key, access};
    return reinterpret_cast<HKEY>(number);
}

// The names of a backslash path; empty parts are passed over.
std::vector<std::string> SplitPath(const char* path)
{
    std::vector<std::string> names;
    if (path == nullptr) {
        return names;
    }
    std::string part;
    for (const char* p = path;; ++p) {
        if (*p == '\\' || *p == '\0') {
            if (!part.empty()) {
                names.push_back(part);
            }
            part.clear();
            if (*p == '\0') {
                break;
            }
        } else {
            part += *p;
        }
    }
    return names;
}

LONG ErrorOf(Status status, LONG failure)
{
    switch (status) {
    case Status::Ok:
        return ERROR_SUCCESS;
    case Status::NotFound:
        return ERROR_FILE_NOT_FOUND;
    case Status::KeyDeleted:
        return ERROR_KEY_DELETED;
    case Status::BadName:
        return ERROR_INVALID_PARAMETER;
    case Status::HasSubkeys:
        return ERROR_ACCESS_DENIED;
    case Status::NoMoreItems:
        return ERROR_NO_MORE_ITEMS;
    case Status::Failed:
        break;
    }
    return failure;
}

// Seconds since 1970 as the platform's file time: 100 ns steps since 1601.
FILETIME FileTimeOf(std::int64_t seconds)
{
    const std::uint64_t kSecondsFrom1601To1970 = 11644473600ULL;
    std::uint64_t ticks =
        (static_cast<std::uint64_t>(seconds < 0 ? 0 : seconds) + kSecondsFrom1601To1970) *
        10000000ULL;
    return {static_cast<DWORD>(ticks & 0xFFFFFFFFu), static_cast<DWORD>(ticks >> 32)};
}

// Opens the store and the handle for one call; `error` says why not when it fails.
struct Call
{
    std::lock_guard<std::mutex> Guard;
    SettingsStore* pStore = nullptr;
    OpenKey Key;
    LONG Error = ERROR_SUCCESS;

    Call(HKEY key, REGSAM needed, LONG storeError, bool writes = false) : Guard(State().Lock)
    {
        RegistryState& state = State();
        pStore = writes && state.bReadOnly ? nullptr : Store(state);
        if (writes && state.bReadOnly) {
            Error = ERROR_ACCESS_DENIED;
        } else if (pStore == nullptr) {
            Error = storeError;
        } else if (!Resolve(state, key, Key)) {
            Error = ERROR_INVALID_HANDLE;
        } else if ((Key.Access & needed) != needed) {
            Error = ERROR_ACCESS_DENIED;
        }
    }
};

} // namespace

LONG RegCreateKeyExA(HKEY key, const char* subKey, DWORD /*reserved*/, char* /*className*/,
                     DWORD /*options*/, REGSAM access, const SECURITY_ATTRIBUTES* /*security*/,
                     PHKEY result, DWORD* disposition)
{
    if (result == nullptr || subKey == nullptr) {
        if (result) {
            *result = nullptr;
        }
        return ERROR_INVALID_PARAMETER;
    }
    *result = nullptr;
    Call call(key, KEY_CREATE_SUB_KEY, ERROR_CANTWRITE);
    if (call.Error != ERROR_SUCCESS) {
        return State().bReadOnly ? ERROR_ACCESS_DENIED : call.Error;
    }
    SettingsStore::KeyId opened = 0;
    bool created = false;
    Status status = Status::Ok;
    if (State().bReadOnly) {
        // Only what is there opens.
        if (call.pStore->OpenPath(call.Key.Key, SplitPath(subKey), opened) != Status::Ok) {
            return ERROR_ACCESS_DENIED;
        }
    } else {
        status = call.pStore->CreatePath(call.Key.Key, SplitPath(subKey), opened, created);
    }
    if (status != Status::Ok) {
        return ErrorOf(status, ERROR_CANTWRITE);
    }
    *result = NewHandle(State(), opened, access);
    if (disposition) {
        *disposition = created ? REG_CREATED_NEW_KEY : REG_OPENED_EXISTING_KEY;
    }
    return ERROR_SUCCESS;
}

LONG RegOpenKeyExA(HKEY key, const char* subKey, DWORD /*options*/, REGSAM access, PHKEY result)
{
    if (result == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    *result = nullptr;
    Call call(key, 0, ERROR_CANTREAD);
    if (call.Error != ERROR_SUCCESS) {
        return call.Error;
    }
    SettingsStore::KeyId opened = 0;
    Status status = call.pStore->OpenPath(call.Key.Key, SplitPath(subKey), opened);
    if (status != Status::Ok) {
        return ErrorOf(status, ERROR_CANTREAD);
    }
    *result = NewHandle(State(), opened, access);
    return ERROR_SUCCESS;
}

LONG RegQueryValueExA(HKEY key, const char* valueName, DWORD* reserved, DWORD* type, BYTE* data,
                      DWORD* size)
{
    if (reserved != nullptr || (data != nullptr && size == nullptr)) {
        return ERROR_INVALID_PARAMETER;
    }
    Call call(key, KEY_QUERY_VALUE, ERROR_CANTREAD);
    if (call.Error != ERROR_SUCCESS) {
        return call.Error;
    }
    SettingsStore::Value value;
    Status status = call.pStore->GetValue(call.Key.Key, valueName ? valueName : "", value);
    if (status != Status::Ok) {
        return ErrorOf(status, ERROR_CANTREAD);
    }
    if (type) {
        *type = value.Type;
    }
    const DWORD needed = static_cast<DWORD>(value.Data.size());
    if (data != nullptr) {
        if (*size < needed) {
            *size = needed;
            return ERROR_MORE_DATA;
        }
        if (needed > 0) {
            std::memcpy(data, value.Data.data(), needed);
        }
    }
    if (size) {
        *size = needed;
    }
    return ERROR_SUCCESS;
}

LONG RegSetValueExA(HKEY key, const char* valueName, DWORD /*reserved*/, DWORD type,
                    const BYTE* data, DWORD size)
{
    if (data == nullptr && size > 0) {
        return ERROR_INVALID_PARAMETER;
    }
    Call call(key, KEY_SET_VALUE, ERROR_CANTWRITE, true);
    if (call.Error != ERROR_SUCCESS) {
        return call.Error;
    }
    return ErrorOf(
        call.pStore->SetValue(call.Key.Key, valueName ? valueName : "", type, data, size),
        ERROR_CANTWRITE);
}

LONG RegEnumKeyExA(HKEY key, DWORD index, char* name, DWORD* nameSize, DWORD* /*reserved*/,
                   char* className, DWORD* classSize, FILETIME* lastWritten)
{
    if (name == nullptr || nameSize == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    Call call(key, KEY_ENUMERATE_SUB_KEYS, ERROR_CANTREAD);
    if (call.Error != ERROR_SUCCESS) {
        return call.Error;
    }
    std::string found;
    std::int64_t written = 0;
    Status status = call.pStore->GetSubkey(call.Key.Key, index, found, written);
    if (status != Status::Ok) {
        return ErrorOf(status, ERROR_CANTREAD);
    }
    if (found.size() >= *nameSize) {
        return ERROR_MORE_DATA;
    }
    std::memcpy(name, found.c_str(), found.size() + 1);
    *nameSize = static_cast<DWORD>(found.size());
    if (className && classSize && *classSize > 0) {
        className[0] = '\0';
    }
    if (classSize) {
        *classSize = 0;
    }
    if (lastWritten) {
        *lastWritten = FileTimeOf(written);
    }
    return ERROR_SUCCESS;
}

LONG RegCloseKey(HKEY key)
{
    if (key == HKEY_LOCAL_MACHINE || key == HKEY_CURRENT_USER) {
        return ERROR_SUCCESS;
    }
    RegistryState& state = State();
    std::lock_guard<std::mutex> guard(state.Lock);
    return state.Handles.erase(reinterpret_cast<std::uintptr_t>(key)) ? ERROR_SUCCESS
                                                                      : ERROR_INVALID_HANDLE;
}

LONG RegDeleteKeyA(HKEY key, const char* subKey)
{
    if (subKey == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    Call call(key, 0, ERROR_CANTWRITE, true);
    if (call.Error != ERROR_SUCCESS) {
        return call.Error;
    }
    return ErrorOf(call.pStore->DeleteKey(call.Key.Key, SplitPath(subKey)), ERROR_CANTWRITE);
}

LONG RegDeleteValueA(HKEY key, const char* valueName)
{
    Call call(key, KEY_SET_VALUE, ERROR_CANTWRITE, true);
    if (call.Error != ERROR_SUCCESS) {
        return call.Error;
    }
    return ErrorOf(call.pStore->DeleteValue(call.Key.Key, valueName ? valueName : ""),
                   ERROR_CANTWRITE);
}

void SetRegistryReadOnly(bool readOnly)
{
    RegistryState& state = State();
    std::lock_guard<std::mutex> guard(state.Lock);
    state.bReadOnly = readOnly;
}

void CloseRegistryStore()
{
    RegistryState& state = State();
    std::lock_guard<std::mutex> guard(state.Lock);
    state.Handles.clear();
    state.pStore.reset();
}
