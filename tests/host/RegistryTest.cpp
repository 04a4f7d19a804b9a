#include <gtest/gtest.h>

#include <cstring>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "host/ScopedHome.h"
#include "platform/Registry.h"

namespace {

class RegistryCalls : public ::testing::Test
{
protected:
    void TearDown() override { CloseRegistryStore(); }

    HKEY Create(const char* path, DWORD* disposition = nullptr, REGSAM access = KEY_ALL_ACCESS)
    {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, access, nullptr, &key,
                                  disposition),
                  ERROR_SUCCESS)
            << path;
        return key;
    }

    static LONG SetText(HKEY key, const char* name, const std::string& text)
    {
        return RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1));
    }

    static std::string QueryText(HKEY key, const char* name)
    {
        DWORD type = 0;
        DWORD size = 0;
        if (RegQueryValueExA(key, name, nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
            return "<missing>";
        }
        std::vector<BYTE> data(size);
        EXPECT_EQ(RegQueryValueExA(key, name, nullptr, nullptr, data.data(), &size), ERROR_SUCCESS);
        EXPECT_EQ(type, REG_SZ);
        return std::string(data.begin(), data.end()).c_str();
    }

    static std::vector<std::string> Subkeys(HKEY key)
    {
        std::vector<std::string> names;
        char name[256];
        for (DWORD i = 0;; ++i) {
            DWORD size = sizeof name;
            if (RegEnumKeyExA(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) !=
                ERROR_SUCCESS) {
                break;
            }
            EXPECT_EQ(size, std::strlen(name));
            names.emplace_back(name);
        }
        return names;
    }

    ScopedHome Home;
};

} // namespace

TEST_F(RegistryCalls, CreateMakesEveryKeyOnThePathAndOpenFindsItIgnoringCase)
{
    DWORD disposition = 0;
    HKEY made = Create("SOFTWARE\\Orbiscope\\Planetarium\\1.0\\orbiscope", &disposition);
    EXPECT_EQ(disposition, REG_CREATED_NEW_KEY);
    HKEY again = Create("software\\ORBISCOPE\\planetarium\\1.0\\Orbiscope", &disposition);
    EXPECT_EQ(disposition, REG_OPENED_EXISTING_KEY);

    HKEY middle = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Software\\Orbiscope", 0, KEY_READ, &middle),
              ERROR_SUCCESS);
    EXPECT_EQ(Subkeys(middle), std::vector<std::string>{"Planetarium"});

    HKEY missing = reinterpret_cast<HKEY>(1);
    EXPECT_EQ(
        RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Orbiscope\\Nothing", 0, KEY_READ, &missing),
        ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(missing, nullptr);
    for (HKEY key : {made, again, middle}) {
        EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
    }
}

TEST_F(RegistryCalls, PathsPassOverEmptyPartsAndRefuseOverlongNames)
{
    HKEY a = Create("\\A\\\\B\\");
    HKEY b = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "A\\B", 0, KEY_READ, &b), ERROR_SUCCESS);
    ASSERT_EQ(SetText(a, "v", "same key"), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(b, "v"), "same key");

    HKEY self = nullptr;
    ASSERT_EQ(RegOpenKeyExA(a, "", 0, KEY_READ, &self), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(self, "v"), "same key");

    HKEY refused = nullptr;
    std::string longest(255, 'k');
    EXPECT_NE(Create(longest.c_str()), nullptr);
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, (longest + "k").c_str(), 0, nullptr, 0,
                              KEY_ALL_ACCESS, nullptr, &refused, nullptr),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(refused, nullptr);
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, nullptr, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &refused, nullptr),
              ERROR_INVALID_PARAMETER);
}

TEST_F(RegistryCalls, ValuesKeepTheirTypeAndBytes)
{
    HKEY key = Create("Values");
    const DWORD number = 0xCAFEF00D;
    const BYTE bytes[] = {0, 1, 2, 0xFF, 0};
    ASSERT_EQ(SetText(key, "Text", "Hello"), ERROR_SUCCESS);
    ASSERT_EQ(RegSetValueExA(key, "Number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number),
                             sizeof number),
              ERROR_SUCCESS);
    ASSERT_EQ(RegSetValueExA(key, "Bytes", 0, REG_BINARY, bytes, sizeof bytes), ERROR_SUCCESS);
    ASSERT_EQ(RegSetValueExA(key, "Empty", 0, REG_BINARY, nullptr, 0), ERROR_SUCCESS);

    DWORD type = 0;
    DWORD size = 0;
    ASSERT_EQ(RegQueryValueExA(key, "TEXT", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, REG_SZ);
    EXPECT_EQ(size, 6u);

    DWORD read = 0;
    size = sizeof read;
    ASSERT_EQ(
        RegQueryValueExA(key, "number", nullptr, &type, reinterpret_cast<BYTE*>(&read), &size),
        ERROR_SUCCESS);
    EXPECT_EQ(type, REG_DWORD);
    EXPECT_EQ(read, number);

    BYTE back[8] = {};
    size = sizeof back;
    ASSERT_EQ(RegQueryValueExA(key, "Bytes", nullptr, &type, back, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, REG_BINARY);
    ASSERT_EQ(size, sizeof bytes);
    EXPECT_EQ(std::memcmp(back, bytes, sizeof bytes), 0);

    size = 99;
    ASSERT_EQ(RegQueryValueExA(key, "Empty", nullptr, &type, back, &size), ERROR_SUCCESS);
    EXPECT_EQ(size, 0u);

    // Writing again replaces the type as well as the data.
    ASSERT_EQ(SetText(key, "Number", "now text"), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(key, "Number"), "now text");
}

TEST_F(RegistryCalls, SmallBuffersAndMissingValues)
{
    HKEY key = Create("Sizes");
    ASSERT_EQ(SetText(key, "Long", std::string(300, 'x')), ERROR_SUCCESS);
    BYTE small[10];
    DWORD size = sizeof small;
    EXPECT_EQ(RegQueryValueExA(key, "Long", nullptr, nullptr, small, &size), ERROR_MORE_DATA);
    EXPECT_EQ(size, 301u);

    size = sizeof small;
    EXPECT_EQ(RegQueryValueExA(key, "Absent", nullptr, nullptr, small, &size),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegQueryValueExA(key, "Long", nullptr, nullptr, small, nullptr),
              ERROR_INVALID_PARAMETER);
    DWORD reserved = 0;
    EXPECT_EQ(RegQueryValueExA(key, "Long", &reserved, nullptr, nullptr, &size),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegSetValueExA(key, "x", 0, REG_BINARY, nullptr, 4), ERROR_INVALID_PARAMETER);

    // The unnamed value of a key, by null or by the empty name.
    ASSERT_EQ(SetText(key, nullptr, "default"), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(key, ""), "default");
    ASSERT_EQ(RegDeleteValueA(key, ""), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(key, nullptr), "<missing>");
    EXPECT_EQ(RegDeleteValueA(key, ""), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryCalls, EnumerationIsOrderedIgnoringCaseAndEnds)
{
    HKEY root = Create("Enum");
    for (const char* name : {"beta", "Alpha", "GAMMA", "delta"}) {
        HKEY child = nullptr;
        ASSERT_EQ(
            RegCreateKeyExA(root, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &child, nullptr),
            ERROR_SUCCESS);
        RegCloseKey(child);
    }
    EXPECT_EQ(Subkeys(root), (std::vector<std::string>{"Alpha", "beta", "delta", "GAMMA"}));

    char name[5];
    DWORD size = sizeof name;
    EXPECT_EQ(RegEnumKeyExA(root, 0, name, &size, nullptr, nullptr, nullptr, nullptr),
              ERROR_MORE_DATA); // "Alpha" needs 6 characters with its zero
    size = sizeof name;
    EXPECT_EQ(RegEnumKeyExA(root, 1, name, &size, nullptr, nullptr, nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_STREQ(name, "beta");
    EXPECT_EQ(RegEnumKeyExA(root, 4, name, &size, nullptr, nullptr, nullptr, nullptr),
              ERROR_NO_MORE_ITEMS);

    char className[8] = "junk";
    DWORD classSize = sizeof className;
    FILETIME written{};
    char full[64];
    size = sizeof full;
    ASSERT_EQ(RegEnumKeyExA(root, 0, full, &size, nullptr, className, &classSize, &written),
              ERROR_SUCCESS);
    EXPECT_STREQ(className, "");
    EXPECT_EQ(classSize, 0u);
    const std::uint64_t ticks =
        static_cast<std::uint64_t>(written.dwHighDateTime) << 32 | written.dwLowDateTime;
    const double seconds = static_cast<double>(ticks) / 1e7 - 11644473600.0;
    EXPECT_NEAR(seconds, static_cast<double>(std::time(nullptr)), 3600.0);
}

TEST_F(RegistryCalls, HandlesAreCheckedForValidityAndRights)
{
    HKEY key = Create("Rights");
    HKEY reader = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Rights", 0, KEY_READ, &reader), ERROR_SUCCESS);
    EXPECT_EQ(SetText(reader, "v", "x"), ERROR_ACCESS_DENIED);
    ASSERT_EQ(SetText(key, "v", "x"), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(reader, "v"), "x");

    HKEY writer = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Rights", 0, KEY_SET_VALUE, &writer),
              ERROR_SUCCESS);
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(writer, "v", nullptr, nullptr, nullptr, &size), ERROR_ACCESS_DENIED);

    EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(key), ERROR_INVALID_HANDLE);
    EXPECT_EQ(SetText(key, "v", "after close"), ERROR_INVALID_HANDLE);
    EXPECT_EQ(SetText(nullptr, "v", "x"), ERROR_INVALID_HANDLE);
    EXPECT_EQ(SetText(reinterpret_cast<HKEY>(0x12345), "v", "x"), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegCloseKey(HKEY_LOCAL_MACHINE), ERROR_SUCCESS);
}

TEST_F(RegistryCalls, DeletingKeysTakesValuesAndLeavesStaleHandlesDeleted)
{
    HKEY parent = Create("Tree");
    HKEY leaf = Create("Tree\\Leaf");
    ASSERT_EQ(SetText(leaf, "v", "x"), ERROR_SUCCESS);

    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "Tree"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegDeleteKeyA(parent, "Leaf"), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyA(parent, "Leaf"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(QueryText(leaf, "v"), "<missing>");
    EXPECT_EQ(SetText(leaf, "v", "x"), ERROR_KEY_DELETED);

    // Made again, the key is new and holds nothing of the old one.
    HKEY again = Create("Tree\\Leaf");
    EXPECT_EQ(QueryText(again, "v"), "<missing>");
    EXPECT_EQ(RegDeleteKeyA(again, ""), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, ""), ERROR_ACCESS_DENIED);
    EXPECT_TRUE(Subkeys(parent).empty());
}

TEST_F(RegistryCalls, RootsAreSeparateTrees)
{
    HKEY machine = Create("Shared");
    HKEY user = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, "Shared", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &user, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(SetText(machine, "v", "machine"), ERROR_SUCCESS);
    ASSERT_EQ(SetText(user, "v", "user"), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(machine, "v"), "machine");
    EXPECT_EQ(QueryText(user, "v"), "user");
}

TEST_F(RegistryCalls, ValuesSurviveClosingTheStore)
{
    HKEY key = Create("Durable\\Key");
    ASSERT_EQ(SetText(key, "v", "kept"), ERROR_SUCCESS);
    CloseRegistryStore();
    EXPECT_EQ(SetText(key, "v", "old handle"), ERROR_INVALID_HANDLE);
    HKEY reopened = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Durable\\Key", 0, KEY_READ, &reopened),
              ERROR_SUCCESS);
    EXPECT_EQ(QueryText(reopened, "v"), "kept");
    EXPECT_TRUE(std::filesystem::exists(Home.File("registry.db")));
}

TEST_F(RegistryCalls, EachConfigurationDirectoryHasItsOwnStore)
{
    HKEY key = Create("Mine");
    ASSERT_EQ(SetText(key, "v", "first"), ERROR_SUCCESS);
    {
        ScopedHome other;
        EXPECT_EQ(SetText(key, "v", "x"), ERROR_INVALID_HANDLE);
        HKEY none = nullptr;
        EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Mine", 0, KEY_READ, &none),
                  ERROR_FILE_NOT_FOUND);
    }
    HKEY back = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Mine", 0, KEY_READ, &back), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(back, "v"), "first");
}

TEST_F(RegistryCalls, ADamagedStoreIsMovedAsideAndReplaced)
{
    Home.WriteFile("registry.db", std::string(8192, 'G'));
    HKEY key = Create("Fresh");
    ASSERT_NE(key, nullptr);
    ASSERT_EQ(SetText(key, "v", "works"), ERROR_SUCCESS);
    EXPECT_EQ(QueryText(key, "v"), "works");
    EXPECT_EQ(Home.ReadFile("registry.db.broken"), std::string(8192, 'G'));
}
