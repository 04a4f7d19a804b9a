#include <gtest/gtest.h>

#include "host/HostIcons.h"
#include "platform/TDib.h"

TEST(HostIcons, ThePlanetIconIsOnePictureForEveryCallerAndUnknownNamesGiveNone)
{
    const TDib* icon = GetHostIcon("PLNT", 0);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(GetHostIcon("plnt", 1), icon);
    EXPECT_EQ(GetHostIcon("NOSUCHICON", 0), nullptr);
}
