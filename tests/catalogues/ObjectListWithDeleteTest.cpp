#include <gtest/gtest.h>

#include <memory>

#include "SkyObjectProbe.h"
#include "catalogues/AstroCatalogue.h"
#include "catalogues/ObjectListWithDelete.h"

namespace {

// A catalogue that hands out its named objects as a list holding a reference on each, as the
// star catalogue hands out its named stars.
class SharingCatalogue : public AstroCatalogue
{
public:
    explicit SharingCatalogue(AstroObject& object) : Object(object) {}
    bool IsTimeDependent() const override { return false; }
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override
    {
        auto list = std::make_unique<ObjectListWithDelete>();
        Object.AddReference();
        list->push_back(&Object);
        return list;
    }

private:
    AstroObject& Object;
};

} // namespace

TEST(ObjectListWithDelete, ReleasesOneReferenceOnEachElement)
{
    bool sharedDeleted = false;
    bool ownDeleted = false;
    auto* shared = new SkyObjectProbe(TPoint(), false, &sharedDeleted);
    shared->AddReference();
    {
        ObjectListWithDelete list;
        list.push_back(shared);
        list.push_back(new SkyObjectProbe(TPoint(), false, &ownDeleted));
        list.Flush();
        EXPECT_TRUE(list.empty());
        EXPECT_TRUE(ownDeleted);
        EXPECT_FALSE(sharedDeleted);
        EXPECT_EQ(shared->GetReferenceCount(), 1);
        list.push_back(shared);
    }
    EXPECT_TRUE(sharedDeleted);
}

TEST(ObjectListWithDelete, CallerDroppingACatalogueListReleasesItsReferences)
{
    bool deleted = false;
    auto* object = new SkyObjectProbe(TPoint(), false, &deleted);
    SharingCatalogue catalogue(*object);
    {
        std::unique_ptr<PointerVector<AstroObject>> list = catalogue.GetListOfNamedObjects();
        ASSERT_EQ(list->size(), 1u);
        EXPECT_EQ(object->GetReferenceCount(), 2);
    }
    EXPECT_FALSE(deleted);
    EXPECT_EQ(object->GetReferenceCount(), 1);
    EXPECT_TRUE(catalogue == catalogue);
    object->ReleaseReference();
    EXPECT_TRUE(deleted);
}
