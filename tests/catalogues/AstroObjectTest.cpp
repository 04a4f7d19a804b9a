#include <gtest/gtest.h>

#include "SkyObjectProbe.h"
#include "catalogues/AstroObject.h"

TEST(AstroObject, LastReleaseDeletesAndEarlierOnesOnlyCount)
{
    bool deleted = false;
    auto* object = new SkyObjectProbe(TPoint(), false, &deleted);
    EXPECT_EQ(object->GetReferenceCount(), 1);
    EXPECT_EQ(object->AddReference(), 2);

    EXPECT_EQ(object->ReleaseReference(), 1);
    EXPECT_FALSE(deleted);
    EXPECT_EQ(object->GetReferenceCount(), 1);

    EXPECT_EQ(object->ReleaseReference(), 0);
    EXPECT_TRUE(deleted);
}

TEST(AstroObject, TypeNamesFollowTheTableAndUnknownTypesReadAsOther)
{
    using Type = AstroObject::ObjectType;
    const std::pair<Type, const char*> table[] = {
        {Type::Star, "Star"},           {Type::Planet, "Planet"},
        {Type::Galaxy, "Galaxy"},       {Type::Nebula, "Nebula"},
        {Type::Asteroid, "Asteroid"},   {Type::Comet, "Comet"},
        {Type::Satellite, "Satellite"}, {Type::Constellation, "Constellation"},
        {Type::Moon, "Moon"},           {Type::OtherObject, "-"},
    };
    for (const auto& [type, text] : table) {
        EXPECT_STREQ(GetObjectTypeName(type), text) << int(type);
    }
    EXPECT_STREQ(GetObjectTypeName(Type(10)), "-");
    EXPECT_STREQ(GetObjectTypeName(Type(-1)), "-");

    SkyObjectProbe planetLike(TPoint(), true);
    EXPECT_EQ(planetLike.GetTypeName(), "Planet");
}

TEST(AstroObject, LaunchStringIsTheFirstLinkOfTheUid)
{
    // Messier 1 is 100 + 1 above the base; data/links.txt lists its encyclopedia article
    // before its SEDS page.
    SkyObjectProbe crab(TPoint(), false, nullptr, AstroObject::kUidBase + 101);
    EXPECT_EQ(crab.GetLaunchString(), "http://en.wikipedia.org/wiki/Crab_Nebula");

    SkyObjectProbe unlinked(TPoint(), false, nullptr, AstroObject::kUidBase + 1000 + 106);
    EXPECT_EQ(unlinked.GetLaunchString(), "");
    SkyObjectProbe noUid;
    EXPECT_EQ(noUid.GetLaunchString(), "");
}
