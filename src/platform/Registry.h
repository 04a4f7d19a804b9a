#pragma once
// The registry calls the component makes, with the types, constants and behaviour of the
// platform whose names they carry, over the durable SettingsStore.
//
// The store is the file registry.db in UserConfigDirectory(), opened at the first call and
// opened again when that directory changes (handles from before then are invalid). Keys
// below HKEY_LOCAL_MACHINE and HKEY_CURRENT_USER live there; names ignore case. Paths are
// names joined by backslashes; empty parts (a leading, trailing or doubled backslash) are
// passed over. Each value written is one transaction.
//
// Results are the platform's error numbers: ERROR_SUCCESS, ERROR_FILE_NOT_FOUND for a
// missing key or value, ERROR_MORE_DATA for a buffer too small, ERROR_NO_MORE_ITEMS at the
// end of an enumeration, ERROR_INVALID_HANDLE, ERROR_ACCESS_DENIED when the handle lacks the
// right or a key with subkeys is deleted, ERROR_KEY_DELETED for a handle whose key is gone,
// ERROR_INVALID_PARAMETER for a bad name or argument, ERROR_CANTWRITE / ERROR_CANTREAD when
// the store fails. On failure the handle a call would have given is set to null.
#include <cstdint>

using BYTE = std::uint8_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using REGSAM = DWORD;

struct HKEY__;
using HKEY = HKEY__*;
using PHKEY = HKEY*;

struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
// Never used: keys carry no security descriptors here.
struct SECURITY_ATTRIBUTES;

// The roots, as the platform numbers them.
extern HKEY const HKEY_CURRENT_USER;
extern HKEY const HKEY_LOCAL_MACHINE;

// Access rights of a key handle.
constexpr REGSAM KEY_QUERY_VALUE = 0x0001;
constexpr REGSAM KEY_SET_VALUE = 0x0002;
constexpr REGSAM KEY_CREATE_SUB_KEY = 0x0004;
constexpr REGSAM KEY_ENUMERATE_SUB_KEYS = 0x0008;
constexpr REGSAM KEY_READ = 0x20019;
constexpr REGSAM KEY_WRITE = 0x20006;
constexpr REGSAM KEY_ALL_ACCESS = 0xF003F;

// Value types.
constexpr DWORD REG_NONE = 0;
constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_EXPAND_SZ = 2;
constexpr DWORD REG_BINARY = 3;
constexpr DWORD REG_DWORD = 4;
constexpr DWORD REG_MULTI_SZ = 7;

constexpr DWORD REG_OPTION_NON_VOLATILE = 0;
// What RegCreateKeyExA did.
constexpr DWORD REG_CREATED_NEW_KEY = 1;
constexpr DWORD REG_OPENED_EXISTING_KEY = 2;

constexpr LONG ERROR_SUCCESS = 0;
constexpr LONG ERROR_FILE_NOT_FOUND = 2;
constexpr LONG ERROR_ACCESS_DENIED = 5;
constexpr LONG ERROR_INVALID_HANDLE = 6;
constexpr LONG ERROR_INVALID_PARAMETER = 87;
constexpr LONG ERROR_MORE_DATA = 234;
constexpr LONG ERROR_NO_MORE_ITEMS = 259;
constexpr LONG ERROR_CANTREAD = 1012;
constexpr LONG ERROR_CANTWRITE = 1013;
constexpr LONG ERROR_KEY_DELETED = 1018;

// Opens the key at `subKey` below `key`, creating every missing key on the way. An empty
// `subKey` opens `key` again. `className` and `security` are ignored; `disposition`, when
// given, receives REG_CREATED_NEW_KEY or REG_OPENED_EXISTING_KEY.
LONG RegCreateKeyExA(HKEY key, const char* subKey, DWORD reserved, char* className, DWORD options,
                     REGSAM access, const SECURITY_ATTRIBUTES* security, PHKEY result,
                     DWORD* disposition);
// Opens an existing key; ERROR_FILE_NOT_FOUND when any part of the path is missing. A null
// or empty `subKey` opens `key` again.
LONG RegOpenKeyExA(HKEY key, const char* subKey, DWORD options, REGSAM access, PHKEY result);
// Reads a value (null or "" names the key's default value). With `data` null only the type
// and the size in bytes are given. A buffer smaller than the value gives ERROR_MORE_DATA
// and the size needed in `size`.
LONG RegQueryValueExA(HKEY key, const char* valueName, DWORD* reserved, DWORD* type, BYTE* data,
                      DWORD* size);
// Stores `size` bytes as the value, replacing any value of that name. A text (REG_SZ) is
// stored as given, so its size should count the terminating zero.
LONG RegSetValueExA(HKEY key, const char* valueName, DWORD reserved, DWORD type, const BYTE* data,
                    DWORD size);
// The name of subkey number `index` of `key`, in the order of names ignoring case.
// `nameSize` holds the size of `name` in characters including the terminating zero, and
// receives the length of the name without it; a name that does not fit gives
// ERROR_MORE_DATA. `className` receives "", `lastWritten` the time the subkey last changed.
LONG RegEnumKeyExA(HKEY key, DWORD index, char* name, DWORD* nameSize, DWORD* reserved,
                   char* className, DWORD* classSize, FILETIME* lastWritten);
LONG RegCloseKey(HKEY key);
// Deletes a key that has no subkeys, with its values. An empty `subKey` deletes `key`
// itself; the roots cannot be deleted.
LONG RegDeleteKeyA(HKEY key, const char* subKey);
LONG RegDeleteValueA(HKEY key, const char* valueName);

// In read-only mode nothing is written and no store is made where there is none: keys that
// exist open as usual, and every call that would create, change or delete something gives
// ERROR_ACCESS_DENIED. Programs that only show the user's settings (drawing a picture from the
// command line) use it.
void SetRegistryReadOnly(bool readOnly);

// Closes the store and every open handle. The next call opens it again. A process closes it
// before it forks, so that parent and child never share a database connection.
void CloseRegistryStore();
