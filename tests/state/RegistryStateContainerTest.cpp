#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/ScopedHome.h"
#include "platform/Registry.h"
#include "state/RegistryStateContainer.h"

namespace {

const char* const kBase = "SOFTWARE\\Orbiscope\\Planetarium\\1.0\\orbiscope";

class RegistryState : public ::testing::Test
{
protected:
    void TearDown() override { CloseRegistryStore(); }

    // Reads a value straight from the registry: its type and its bytes.
    static bool RawValue(const std::string& path, const char* name, DWORD& type, std::string& bytes)
    {
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
            return false;
        }
        DWORD size = 0;
        bool found = RegQueryValueExA(key, name, nullptr, &type, nullptr, &size) == ERROR_SUCCESS;
        if (found) {
            bytes.assign(size, '\0');
            RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(bytes.data()),
                             &size);
        }
        RegCloseKey(key);
        return found;
    }

    static void SetRaw(const std::string& path, const char* name, DWORD type,
                       const std::string& bytes)
    {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        ASSERT_EQ(RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                                 static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }

    // A text value of `length` characters read back through a fresh container.
    static std::string RoundTrip(const std::string& text)
    {
        {
            RegistryStateContainer writer(kBase);
            writer << AstroKey("Long") << text;
        }
        RegistryStateContainer reader(kBase);
        std::string back;
        reader >> AstroKey("Long") >> back;
        return back;
    }

    ScopedHome Home;
};

} // namespace

TEST_F(RegistryState, ConstructorCreatesTheKey)
{
    RegistryStateContainer sc(kBase);
    EXPECT_NE(sc.GetHandle(), nullptr);
    EXPECT_EQ(sc.GetPath(), kBase);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, kBase, 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);
}

TEST_F(RegistryState, LevelsBecomeSubkeysAndValuesTexts)
{
    {
        RegistryStateContainer sc(kBase);
        sc << AstroKey("Default") << NewLevel << AstroKey("Center") << NewLevel << AstroKey("RA")
           << 10.5 << AstroKey("Dec") << -20.0 << EndLevel << AstroKey("Zenith Offset")
           << 123.456789 << AstroKey("Labels") << true << EndLevel;
        EXPECT_EQ(sc.GetPath(), kBase);
    }
    DWORD type = 0;
    std::string bytes;
    ASSERT_TRUE(RawValue(std::string(kBase) + "\\Default\\Center", "RA", type, bytes));
    EXPECT_EQ(type, REG_SZ);
    EXPECT_EQ(bytes, std::string("10.5", 5)); // the text and its terminating zero

    RegistryStateContainer sc(kBase);
    double ra = 0, dec = 0, offset = 0;
    bool labels = false;
    long missing = 99;
    sc >> AstroKey("Default") >> GoToLevel >> AstroKey("Center") >> GoToLevel >> AstroKey("RA") >>
        ra >> AstroKey("Dec") >> dec >> AstroKey("Absent") >> missing >> EndLevel >>
        AstroKey("zenith offset") >> offset >> AstroKey("Labels") >> labels >> EndLevel;
    EXPECT_EQ(ra, 10.5);
    EXPECT_EQ(dec, -20.0);
    EXPECT_EQ(offset, 123.457);
    EXPECT_TRUE(labels);
    EXPECT_EQ(missing, 0);
    EXPECT_EQ(sc.GetPath(), kBase);
}

TEST_F(RegistryState, ValuesOfOtherTypesReadAsEmptyText)
{
    const std::string path = std::string(kBase) + "\\Typed";
    SetRaw(path, "Number", REG_DWORD, std::string("\x2A\0\0\0", 4));
    SetRaw(path, "Bytes", REG_BINARY, "abc");
    RegistryStateContainer sc(path);
    std::string text = "unchanged";
    long number = 7;
    sc >> AstroKey("Number") >> text >> AstroKey("Number") >> number;
    EXPECT_EQ(text, "");
    EXPECT_EQ(number, 0);
    sc >> AstroKey("Bytes") >> text;
    EXPECT_EQ(text, "");
}

TEST_F(RegistryState, LongValuesReadWholeAcrossTheSmallBuffer)
{
    // Sizes around the 100-byte stack buffer: the stored size counts the terminating zero,
    // and the read asks for one byte more.
    for (std::size_t length : {0u, 1u, 97u, 98u, 99u, 100u, 101u, 150u, 5000u}) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i) {
            text += static_cast<char>('A' + i % 26);
        }
        EXPECT_EQ(RoundTrip(text), text) << length;
    }
}

TEST_F(RegistryState, TextsStoredWithoutTheirZeroStillEnd)
{
    SetRaw(kBase, "Bare", REG_SZ, std::string(100, 'x'));
    SetRaw(kBase, "Short", REG_SZ, "abc");
    SetRaw(kBase, "Inner", REG_SZ, std::string("ab\0cd", 5));
    RegistryStateContainer sc(kBase);
    std::string bare, shortText, inner;
    sc >> AstroKey("Bare") >> bare >> AstroKey("Short") >> shortText >> AstroKey("Inner") >> inner;
    EXPECT_EQ(bare, std::string(100, 'x'));
    EXPECT_EQ(shortText, "abc");
    EXPECT_EQ(inner, "ab");
}

TEST_F(RegistryState, ParentOfAPathWithoutABackslashIsItself)
{
    RegistryStateContainer sc("Flat");
    sc << EndLevel << EndLevel;
    EXPECT_EQ(sc.GetPath(), "Flat");
    ASSERT_NE(sc.GetHandle(), nullptr);
    sc << AstroKey("v") << 5L;
    long v = 0;
    sc >> AstroKey("v") >> v;
    EXPECT_EQ(v, 5);

    RegistryStateContainer rooted("\\Rooted");
    rooted << EndLevel;
    EXPECT_EQ(rooted.GetPath(), "\\Rooted");
}

TEST_F(RegistryState, AMissingLevelReadsEmptyAndItsParentStillWorks)
{
    {
        RegistryStateContainer writer(kBase);
        writer << AstroKey("Kept") << std::string("here");
    }
    RegistryStateContainer sc(kBase);
    std::string inside = "x";
    long number = 5;
    sc >> AstroKey("Nowhere") >> GoToLevel;
    EXPECT_EQ(sc.GetHandle(), nullptr);
    sc >> AstroKey("Kept") >> inside >> AstroKey("n") >> number;
    EXPECT_EQ(inside, "");
    EXPECT_EQ(number, 0);
    sc << AstroKey("Lost") << std::string("goes nowhere");

    sc >> EndLevel;
    EXPECT_EQ(sc.GetPath(), kBase);
    sc >> AstroKey("Kept") >> inside;
    EXPECT_EQ(inside, "here");
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, (std::string(kBase) + "\\Nowhere").c_str(), 0,
                            KEY_READ, &key),
              ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryState, ListKeyNamesGivesTheLevelsBelowInOrder)
{
    {
        RegistryStateContainer sc(kBase);
        for (const char* level : {"Saved View", "Default", "another"}) {
            sc << AstroKey(level) << NewLevel << AstroKey("x") << 1 << EndLevel;
        }
    }
    RegistryStateContainer sc(kBase);
    std::vector<std::string> names{"kept"};
    EXPECT_TRUE(sc.ListKeyNames(names));
    EXPECT_EQ(names, (std::vector<std::string>{"kept", "another", "Default", "Saved View"}));

    // The default state is restored only when a level is named "Default" exactly.
    bool hasDefault = false;
    for (const std::string& name : names) {
        hasDefault = hasDefault || name == "Default";
    }
    EXPECT_TRUE(hasDefault);

    RegistryStateContainer empty(std::string(kBase) + "\\Default");
    std::vector<std::string> none;
    EXPECT_TRUE(empty.ListKeyNames(none));
    EXPECT_TRUE(none.empty());
}

TEST_F(RegistryState, ListKeyNamesStopsAtANameTooLongForItsBuffer)
{
    const std::string path = std::string(kBase) + "\\Names";
    {
        RegistryStateContainer sc(path);
        for (const std::string& level :
             {std::string("a"), std::string(199, 'b'), std::string(200, 'c'), std::string("d")}) {
            sc << AstroKey(level) << NewLevel << AstroKey("x") << 1 << EndLevel;
        }
    }
    RegistryStateContainer sc(path);
    std::vector<std::string> names;
    EXPECT_TRUE(sc.ListKeyNames(names));
    EXPECT_EQ(names, (std::vector<std::string>{"a", std::string(199, 'b')}));

    sc >> AstroKey("Nowhere") >> GoToLevel;
    std::vector<std::string> fromMissing;
    EXPECT_TRUE(sc.ListKeyNames(fromMissing));
    EXPECT_TRUE(fromMissing.empty());
}
