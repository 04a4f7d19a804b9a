// The counted font that labels share: who holds it, and when it goes.
#include <gtest/gtest.h>

#include <memory>

#include "MarkedObject.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"

TEST(FontRef, CountStartsAtZeroForItsMakerAndEachHolderGivesOneBack)
{
    FontRef* font = NewTestLabelFont();
    EXPECT_EQ(font->GetReferenceCount(), 0);
    EXPECT_TRUE(font->OwnsFont());
    EXPECT_EQ(font->GetFont().GetFaceName(), "Arial");

    font->AddReference();
    font->AddReference();
    EXPECT_EQ(font->GetReferenceCount(), 2);
    font->Release();
    font->Release();
    EXPECT_EQ(font->GetReferenceCount(), 0);
    // The maker's own release deletes it, and the owned font with it; the sanitizer build
    // would report either being left behind or freed twice.
    font->Release();
}

TEST(FontRef, LabelsHoldOneReferenceEachAndCopiesOneMore)
{
    FontRef* font = NewTestLabelFont();
    {
        Label first("Vega", TPoint(1, 2), *font, TColor::White);
        EXPECT_EQ(font->GetReferenceCount(), 1);
        Label copy(first);
        EXPECT_EQ(copy.GetFontRef(), font);
        EXPECT_EQ(font->GetReferenceCount(), 2);

        // A label that takes another's font gives its old one back.
        FontRef* other = NewTestLabelFont();
        Label elsewhere(*other, TColor::Black);
        EXPECT_EQ(other->GetReferenceCount(), 1);
        elsewhere.Copy(first);
        EXPECT_EQ(other->GetReferenceCount(), 0);
        EXPECT_EQ(font->GetReferenceCount(), 3);
        other->Release();

        // Copying a label onto itself changes nothing.
        first.Copy(first);
        EXPECT_EQ(font->GetReferenceCount(), 3);
    }
    EXPECT_EQ(font->GetReferenceCount(), 0);
    font->Release();
}

TEST(FontRef, LabelGivenAPlainFontHoldsItWithoutOwningIt)
{
    TFont font("Times New Roman", 15);
    {
        Label label(font, TColor::White);
        ASSERT_NE(label.GetFontRef(), nullptr);
        EXPECT_FALSE(label.GetFontRef()->OwnsFont());
        EXPECT_EQ(&label.GetFontRef()->GetFont(), &font);
        // The label made the FontRef and is its only holder.
        EXPECT_EQ(label.GetFontRef()->GetReferenceCount(), 0);
        Label copy(label);
        EXPECT_EQ(copy.GetFontRef(), label.GetFontRef());
        EXPECT_EQ(label.GetFontRef()->GetReferenceCount(), 1);
    }
    // The font outlives the labels and their FontRef.
    EXPECT_EQ(font.GetFaceName(), "Times New Roman");
}
