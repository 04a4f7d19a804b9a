#include <gtest/gtest.h>

#include <vector>

#include "host/ScopedHome.h"
#include "platform/Registry.h"
#include "state/RegistryStateContainer.h"

namespace {

const std::string kBase = "SOFTWARE\\Orbiscope\\Planetarium\\1.0\\orbiscope";

class RegistryState : public ::testing::Test
{
protected:
    void TearDown() override { CloseRegistryStore(); }

    // Stores a value as another program might: any type, any bytes.
    static void SetRaw(const char* name, DWORD type, const std::string& bytes)
    {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, kBase.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        RegSetValueExA(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                       static_cast<DWORD>(bytes.size()));
        RegCloseKey(key);
    }

    ScopedHome Home;
};

} // namespace

TEST_F(RegistryState, ValuesOfAnyLengthComeBackWholeAndOtherTypesReadAsEmptyText)
{
    // Lengths around the 100-byte buffer of the read, whose size counts the terminating zero.
    for (std::size_t length : {0u, 1u, 98u, 99u, 100u, 101u, 5000u}) {
        const std::string text(length, 'x');
        RegistryStateContainer writer(kBase), reader(kBase);
        writer << AstroKey("Long") << text;
        std::string back = "unread";
        reader >> AstroKey("Long") >> back;
        EXPECT_EQ(back, text) << length;
    }
    SetRaw("Number", REG_DWORD, std::string("\x2A\0\0\0", 4));
    SetRaw("Bare", REG_SZ, std::string(100, 'x'));
    RegistryStateContainer sc(kBase);
    std::string number = "unchanged", bare;
    sc >> AstroKey("Number") >> number >> AstroKey("Bare") >> bare;
    EXPECT_EQ(number, "");
    EXPECT_EQ(bare, std::string(100, 'x')) << "a text stored without its zero still ends";
}

TEST_F(RegistryState, AMissingLevelReadsEmptyAndLeavesItsParentAsItWas)
{
    RegistryStateContainer sc(kBase);
    sc << AstroKey("Kept") << std::string("here");
    std::string inside = "x";
    sc >> AstroKey("Nowhere") >> GoToLevel >> AstroKey("Kept") >> inside;
    EXPECT_EQ(inside, "");
    sc >> EndLevel >> AstroKey("Kept") >> inside;
    EXPECT_EQ(inside, "here");
    // Nor does reading make the level: a missing "Default" must stay missing.
    std::vector<std::string> names;
    EXPECT_TRUE(sc.ListKeyNames(names) && names.empty());
}

TEST_F(RegistryState, ListKeyNamesGivesTheLevelsBelowInOrderUpToTheNameBuffer)
{
    RegistryStateContainer sc(kBase);
    for (const std::string& level :
         {std::string("Default"), std::string("another"), std::string(200, 'x')}) {
        sc << AstroKey(level) << NewLevel << AstroKey("x") << 1 << EndLevel;
    }
    std::vector<std::string> names{"kept"};
    EXPECT_TRUE(sc.ListKeyNames(names));
    // Sorted without regard to case; a name too long for the buffer of 200 characters ends it.
    EXPECT_EQ(names, (std::vector<std::string>{"kept", "another", "Default"}));
}
