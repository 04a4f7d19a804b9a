#include "state/RegistryStateContainer.h"

#include <cstring>
#include <memory>

RegistryStateContainer::RegistryStateContainer(const std::string& path) : Path(path)
{
    OpenPath(true);
}

RegistryStateContainer::~RegistryStateContainer()
{
    if (hKey != nullptr) {
        RegCloseKey(hKey);
    }
}

void RegistryStateContainer::OpenPath(bool create)
{
    // Nothing uses a handle after its level is left, so the old one closes here.
    if (hKey != nullptr) {
        RegCloseKey(hKey);
        hKey = nullptr;
    }
    if (create) {
        DWORD disposition = 0;
        RegCreateKeyExA(HKEY_LOCAL_MACHINE, Path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                        &hKey, &disposition);
    } else {
        RegOpenKeyExA(HKEY_LOCAL_MACHINE, Path.c_str(), 0, KEY_ALL_ACCESS, &hKey);
    }
}

bool RegistryStateContainer::ListKeyNames(std::vector<std::string>& names)
{
    char name[kKeyNameChars];
    for (DWORD index = 0;; ++index) {
        DWORD size = kKeyNameChars;
        name[0] = '\0';
        if (RegEnumKeyExA(hKey, index, name, &size, nullptr, nullptr, nullptr, nullptr) !=
                ERROR_SUCCESS ||
            name[0] == '\0') {
            break;
        }
        names.emplace_back(name);
    }
    return true;
}

void RegistryStateContainer::Write(std::string& value)
{
    RegSetValueExA(hKey, Key.GetName().c_str(), 0, REG_SZ,
                   reinterpret_cast<const BYTE*>(value.c_str()),
                   static_cast<DWORD>(value.size() + 1));
}

std::string RegistryStateContainer::GetValue()
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (RegQueryValueExA(hKey, Key.GetName().c_str(), nullptr, &type, nullptr, &size) !=
            ERROR_SUCCESS ||
        type != REG_SZ) {
        return std::string();
    }
    // One byte more than stored, so that a text written without its terminating zero still
    // ends inside the buffer.
    size += 1;
    char small[kSmallValueBytes] = {};
    std::unique_ptr<char[]> large;
    char* buffer = small;
    if (size > kSmallValueBytes) {
        large = std::make_unique<char[]>(size); // zeroed
        buffer = large.get();
    }
    DWORD read = size;
    if (RegQueryValueExA(hKey, Key.GetName().c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(buffer), &read) != ERROR_SUCCESS) {
        return std::string();
    }
    return std::string(buffer, ::strnlen(buffer, read));
}

void RegistryStateContainer::CreateLevel()
{
    Path += "\\" + Key.GetName();
    OpenPath(true);
}

void RegistryStateContainer::MoveToLevel()
{
    Path += "\\" + Key.GetName();
    OpenPath(false);
}

void RegistryStateContainer::GoToParentLevel()
{
    std::size_t slash = Path.rfind('\\');
    if (slash == std::string::npos || slash == 0) {
        return;
    }
    Path.erase(slash);
    OpenPath(true);
}
