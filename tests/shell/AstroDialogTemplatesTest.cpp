// The dialog resources: every key in them has words in the string table, ids are not given
// twice, and the lapse's stop dialog shows its words and the caption it is given.
#include <gtest/gtest.h>

#include <set>

#include "DialogTesting.h"
#include "host/HostStringTable.h"
#include "shell/AstroDialogTemplates.h"
#include "shell/StopAnimationDialog.h"

namespace {

using DialogResources = DialogTest;

TEST_F(DialogResources, EveryKeyHasWordsAndEveryIdIsGivenOnce)
{
    const DialogTemplate templates[] = {
        AstroDialogTemplates::Time(),         AstroDialogTemplates::Animation(),
        AstroDialogTemplates::Grid(),         AstroDialogTemplates::ObjectList(),
        AstroDialogTemplates::ObjectInfo(),   AstroDialogTemplates::Location(),
        AstroDialogTemplates::StopAnimation()};
    for (const DialogTemplate& t : templates) {
        EXPECT_EQ(replaceHostString(5, t.Title).find("STID_"), std::string::npos) << t.Title;
        std::set<int> ids;
        for (const DialogItemTemplate& item : t.Items) {
            EXPECT_EQ(replaceHostString(5, item.Text).find("STID_"), std::string::npos)
                << t.Title << ": " << item.Text;
            if (item.Id != -1) {
                EXPECT_TRUE(ids.insert(item.Id).second) << t.Title << ": id " << item.Id;
            }
        }
        EXPECT_EQ(ids.count(IDOK), 1u) << t.Title;
    }
}

TEST_F(DialogResources, StopDialogShowsItsWordsAndEndsOnStop)
{
    StopAnimationDialog dialog(nullptr, getHostString(5, 0x0b18));
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            EXPECT_EQ(window.GetWindowText(), getHostString(5, 0x0b18));
                            EXPECT_TRUE(AllKeysReplaced(window));
                            EXPECT_EQ(window.ChildWithId(IDOK)->GetWindowText(),
                                      replaceHostString(5, "STID_ASTRO_DLB_BTN_STOP"));
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
}

} // namespace
