// The registry calls over the settings store, where the component keeps its saved state.
#include <gtest/gtest.h>

#include "host/ScopedHome.h"
#include "platform/Registry.h"

namespace {

class RegistryCalls : public ::testing::Test
{
protected:
    void TearDown() override { CloseRegistryStore(); }

    static HKEY Create(const char* path)
    {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                  &key, nullptr),
                  ERROR_SUCCESS)
            << path;
        return key;
    }

    static LONG SetText(HKEY key, const char* name, const std::string& text)
    {
        return RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1));
    }

    // The text stored under `name`, or "<missing>".
    static std::string Text(HKEY key, const char* name)
    {
        char data[64] = {};
        DWORD size = sizeof data;
        return RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(data),
                                &size) == ERROR_SUCCESS
                   ? data
                   : "<missing>";
    }

    ScopedHome Home;
};

} // namespace

TEST_F(RegistryCalls, KeysAndValuesAreFoundWhateverTheCaseOfTheirNames)
{
    // Empty parts of a path are passed over.
    HKEY made = Create("SOFTWARE\\Orbiscope\\\\orbiscope\\");
    HKEY again = Create("software\\ORBISCOPE\\Orbiscope");
    ASSERT_EQ(SetText(made, "Text", "written"), ERROR_SUCCESS);
    EXPECT_EQ(Text(again, "TEXT"), "written");
    EXPECT_EQ(Text(again, "Absent"), "<missing>");
}

TEST_F(RegistryCalls, HandlesAreCheckedForTheirRightsAndForBeingOpen)
{
    HKEY root = Create("Rights");
    HKEY reader = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "rights", 0, KEY_READ, &reader), ERROR_SUCCESS);
    EXPECT_EQ(SetText(reader, "v", "x"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegCloseKey(root), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(root), ERROR_INVALID_HANDLE);
    EXPECT_EQ(SetText(root, "v", "after close"), ERROR_INVALID_HANDLE);
}

TEST_F(RegistryCalls, WhatIsSavedOutlivesTheStoreAndADamagedStoreIsMovedAsideNotLost)
{
    ASSERT_EQ(SetText(Create("Durable"), "v", "kept"), ERROR_SUCCESS);
    CloseRegistryStore();
    EXPECT_EQ(Text(Create("Durable"), "v"), "kept");
    {
        // Another configuration directory has a store of its own.
        const ScopedHome other;
        EXPECT_EQ(Text(Create("Durable"), "v"), "<missing>");
    }
    EXPECT_EQ(Text(Create("Durable"), "v"), "kept");
    CloseRegistryStore();

    Home.WriteFile("registry.db", std::string(8192, 'G'));
    ASSERT_EQ(SetText(Create("Fresh"), "v", "works"), ERROR_SUCCESS);
    EXPECT_EQ(Text(Create("Fresh"), "v"), "works");
    EXPECT_EQ(Home.ReadFile("registry.db.broken"), std::string(8192, 'G'));
}
