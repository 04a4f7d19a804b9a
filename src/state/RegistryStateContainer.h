#pragma once
// State in the registry: each level is a key below HKEY_LOCAL_MACHINE, each value a text
// (REG_SZ) named by its key.
//
// The container keeps the path of the open key below the root, such as
// "SOFTWARE\Orbiscope\Planetarium\1.0\orbiscope\Default", and one handle to it. Entering or
// creating a level adds "\" and the current key to the path; leaving cuts the path at its
// last backslash. Writes take effect at once. No operation reports a failure: a level that
// cannot be opened leaves no handle, so its reads give empty texts and its writes go nowhere.
#include <string>
#include <vector>

#include "platform/Registry.h"
#include "state/StateContainer.h"

class RegistryStateContainer : public StateContainer
{
public:
    // Opens the key of `path` below HKEY_LOCAL_MACHINE, creating it when absent.
    explicit RegistryStateContainer(const std::string& path);
    ~RegistryStateContainer() override;
    RegistryStateContainer(const RegistryStateContainer&) = delete;
    RegistryStateContainer& operator=(const RegistryStateContainer&) = delete;

    // Appends the names of the subkeys of the open key; names of 200 characters or more end
    // the list. Always true.
    bool ListKeyNames(std::vector<std::string>& names) override;
    void Write(std::string& value) override;
    std::string GetValue() override;
    void CreateLevel() override;
    void GoToParentLevel() override;
    void MoveToLevel() override;

    const std::string& GetPath() const { return Path; }
    // The handle of the open key, null when the last open failed.
    HKEY GetHandle() const { return hKey; }

    // The stack buffer of GetValue; longer values are read through the heap.
    static constexpr unsigned kSmallValueBytes = 100;
    // The buffer for one subkey name in ListKeyNames, in characters.
    static constexpr unsigned kKeyNameChars = 200;

private:
    // Closes the open handle and opens Path, creating it or only opening it.
    void OpenPath(bool create);

    HKEY hKey = nullptr;
    std::string Path;
};
