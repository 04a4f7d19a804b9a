// The component inside the reference host's main window, driven as a person drives it: the
// fly-out menu from the title bar with its check marks, separators and sub-menus, the keys and
// the wheel, full-screen mode, bookmarks kept and refused, and the first start.
#include <string>

#include "ComponentInFrame.h"
#include "host/HostBookmarkList.h"
#include "host/HostHelp.h"
#include "host/HostMainFrame.h"
#include "host/HostMessages.h"
#include "host/HostTitleBar.h"
#include "platform/MenuData.h"
#include "platform/PopupMenuWindow.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"

namespace {

class HostMainFrameTest : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        ASSERT_TRUE(HostProfile().Write("Orbiscope", "CityList", Home.File("none.txt")));
        SetHostFrameAPI(&Frame);
        ASSERT_TRUE(Main.Create());
        Frame.SetFrameWindow(&Main);
        InstallHostHelp();
        Start(IDCANCEL);
    }
    void TearDown() override
    {
        Main.Destroy();
        SetWinHelpHandler(nullptr);
        SetHostFrameAPI(nullptr);
        CloseRegistryStore();
        DialogTest::TearDown();
    }

    // Enters the component as the program does; at a first start the location dialog is
    // answered with `button`, after typing a place for OK.
    void Start(int button)
    {
        if (!AstroNoxWindow::HasDefaultState()) {
            Desk().AnswerNextModal([button](TWindow& dialog) {
                if (button == IDOK) {
                    HeadlessBackend::TypeInto(dialog, LocationDialog::kCityName, "Quito");
                    HeadlessBackend::TypeInto(dialog, LocationDialog::kLatitudeMinutes, "13");
                    HeadlessBackend::TypeInto(dialog, LocationDialog::kLongitudeDegrees, "78");
                }
                HeadlessBackend::PressButton(dialog, button);
            });
        }
        const std::uint32_t handle = orbiscope(Main.HWindow, nullptr);
        pWindow = dynamic_cast<AstroNoxWindow*>(GetWindowPtr(HWND(std::uintptr_t(handle))));
        ASSERT_NE(pWindow, nullptr);
        pMap = pWindow->GetMap();
        Main.AttachModule(*pWindow);
        Main.SetScroller([this](int direction) { pWindow->ScrollMap(direction); });
        Pump();
        pMap->SetFocus();
    }
    void Restart(int button)
    {
        pWindow->Destroy();
        Start(button);
    }

    // Opens the fly-out menu from the title bar's button and lets `act` work it.
    void OpenMenu(std::function<void(PopupMenuWindow&)> act)
    {
        Desk().AnswerNextModal([act](TWindow& menu) { act(dynamic_cast<PopupMenuWindow&>(menu)); });
        const TRect button = Main.GetTitleBar()->GetMenuButtonRect();
        Desk().Click(*Main.GetTitleBar(), TPoint((button.left + button.right) / 2, button.top + 2));
        Pump();
    }
    // A menu as a person reads it: each entry's text, "[x]" before a checked one, "-" for a
    // separator and its entries in braces after one that opens a sub-menu.
    static std::string Read(HMENU menu)
    {
        std::string text;
        for (const MenuItem& item : MenuData::Find(menu)->Items) {
            text += text.empty() ? "" : " | ";
            if (item.IsSeparator()) {
                text += "-";
                continue;
            }
            text += (item.IsChecked() ? "[x]" : "") + item.Text;
            if (item.OpensSubMenu()) {
                text += " {" + Read(item.Popup) + "}";
            }
        }
        return text;
    }
    std::string ShownMenu()
    {
        std::string shown;
        OpenMenu([&shown](PopupMenuWindow& menu) {
            shown = Read(menu.GetMenu());
            Desk().PressKey(VK_ESCAPE);
        });
        return shown;
    }
    // Presses a key, with Ctrl when `control`, as the map has the focus.
    void Key(UINT key, bool control = false)
    {
        if (control) {
            Desk().KeyDown(VK_CONTROL);
        }
        Desk().PressKey(key);
        if (control) {
            Desk().KeyUp(VK_CONTROL);
        }
        Pump();
    }
    double Radius() const { return pMap->GetOrientation().GetFieldRadius(); }

    StandardHostFrame Frame{[this](const std::string& address) {
        Launched.push_back(address);
        return true;
    }};
    std::vector<std::string> Launched;
    HostMainFrame Main{"Orbiscope", 640, 480};
    AstroNoxWindow* pWindow = nullptr;
    MapWindow* pMap = nullptr;
};

TEST_F(HostMainFrameTest, TheMenuButtonShowsTheEntriesWithTheirKeysMarksAndSubMenus)
{
    EXPECT_EQ(Main.GetTitleBar()->GetTitle(), "Planetarium") << "the component's title";
    ConstellationSettings settings = pMap->GetConstellationSettings();
    settings.bShowLabels = false;
    settings.bShowFigures = true;
    settings.bShowBoundaries = false;
    pMap->SetConstellationSettings(settings);
    pMap->ShowMessierObjects(true);
    pMap->ShowComets(false);

    // A right click anywhere on the strip opens the same menu as the button.
    std::string byRightClick;
    Desk().AnswerNextModal([&byRightClick](TWindow& menu) {
        byRightClick = Read(dynamic_cast<PopupMenuWindow&>(menu).GetMenu());
        Desk().PressKey(VK_ESCAPE);
    });
    Desk().Click(*Main.GetTitleBar(), TPoint(200, 10), MK_RBUTTON);
    Pump();
    const std::string shown = ShownMenu();
    EXPECT_EQ(byRightClick, shown);
    EXPECT_EQ(shown,
              "Full Screen\tF11 | - | Zoom In\t+ | Zoom Out\t- | - | Display {Constellations "
              "{Names | [x]Figures | Boundaries} | [x]Planet Labels | Stars... | Comets | "
              "[x]Messier Objects | - | Right Ascension and Declination Lines...\tCtrl+G | Show "
              "Below the Horizon} | Locate {Constellations... | Planets... | Stars... | "
              "Comets... | Messier Objects... | Sun | Moon} | Set Location...\tCtrl+L | Set Date "
              "and Time...\tCtrl+T | - | Set Time Lapse... | Start Time Lapse\tSpace | - | Print "
              "Star Chart...\tCtrl+P | Add Bookmark\tCtrl+B | Bookmarks {(No bookmarks yet: Add "
              "Bookmark keeps the view)} | - | Help\tF1 | Quit");

    // The developer's mode keeps the time zone dump; full-screen mode turns the entry round
    // and shows the finder.
    ASSERT_TRUE(HostProfile().Write("Orbiscope", "DevMode", "1"));
    Key(VK_F11);
    ASSERT_TRUE(Main.IsFullScreen());
    const std::string full = ShownMenu();
    EXPECT_EQ(full.substr(0, full.find(" | ")), "Exit Full Screen\tF11");
    EXPECT_NE(full.find("Show Below the Horizon | [x]Finder\tCtrl+F}"), std::string::npos) << full;
    EXPECT_NE(full.find("Dump Time Zone Names"), std::string::npos) << full;
}

// The keys move the highlight past separators, Right opens a sub-menu, Escape closes one menu
// at a time, and an entry chosen in a sub-menu does its work and shows in the next marks.
TEST_F(HostMainFrameTest, ThePopupSkipsSeparatorsOpensSubMenusAndClosesOnEscape)
{
    UINT highlighted = 0;
    OpenMenu([&](PopupMenuWindow& menu) {
        for (int step = 0; step < 3; ++step) {
            Desk().PressKey(VK_DOWN);
        }
        // Full Screen, Zoom In, Zoom Out: the separator between is passed over.
        highlighted = MenuData::Find(menu.GetMenu())->Items[std::size_t(menu.GetHighlight())].Id;
        Desk().PressKey(VK_DOWN);
        Desk().PressKey(VK_RIGHT);
        ASSERT_NE(menu.GetOpenSubMenu(), nullptr) << "Display opens its sub-menu";
        Desk().PressKey(VK_ESCAPE);
        EXPECT_EQ(menu.GetOpenSubMenu(), nullptr);
        EXPECT_TRUE(menu.IsWindowVisible()) << "only the sub-menu closed";
        Desk().PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(highlighted, HostMainFrame::kZoomOutCommand);

    const bool figures = pMap->GetConstellationSettings().bShowFigures;
    OpenMenu([](PopupMenuWindow& menu) {
        HeadlessBackend::ChooseMenuItem(menu, AstroNoxWindow::kCmDisplayConstellationFigures);
    });
    EXPECT_NE(pMap->GetConstellationSettings().bShowFigures, figures);
    EXPECT_EQ(ShownMenu().find("[x]Figures") == std::string::npos, figures);
}

TEST_F(HostMainFrameTest, KeysOpenTheDialogsAndTheWheelAndPlusAndMinusZoom)
{
    const struct
    {
        UINT Key;
        std::string Title;
    } dialogs[] = {{'T', "Set Date and Time"},
                   {'L', "Set Location"},
                   {'G', "Right Ascension and Declination Lines"}};
    for (const auto& row : dialogs) {
        std::string title;
        Desk().AnswerNextModal([&title](TWindow& dialog) {
            title = dialog.GetWindowText();
            HeadlessBackend::PressButton(dialog, IDCANCEL);
        });
        Key(row.Key, true);
        EXPECT_NE(title.find(row.Title), std::string::npos) << "Ctrl+" << char(row.Key);
    }

    pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), 20));
    const TRect client = pMap->GetClientRect();
    const TPoint centre = pMap->ClientToScreen(TPoint(client.right / 2, client.bottom / 2));
    Desk().Wheel(centre, -WHEEL_DELTA);
    Pump();
    EXPECT_NEAR(Radius(), 20 * 4.0 / 3.0, 1e-9) << "the wheel down widens the field";
    Desk().Wheel(centre, 2 * WHEEL_DELTA);
    Pump();
    EXPECT_NEAR(Radius(), 20 * 0.75, 1e-9) << "two notches up narrow it twice";
    Desk().Type("+");
    Pump();
    EXPECT_NEAR(Radius(), 20 * 0.75 * 0.75, 1e-9);
    Desk().Type("-");
    Pump();
    EXPECT_NEAR(Radius(), 20 * 0.75, 1e-9);
    EXPECT_EQ(pMap->GetTransformation()->GetCenterOfView(), PolarCoord(0, 90))
        << "about the centre";

    // An arrow key held turns the view on at the map's pace; let go, it stands.
    pMap->SetOrientation(RotatingOrientationInfo(
        pMap->GetCollector().GetOrigin(), LatLong(48.85, 357.65), PolarCoord(180, 45), 40.0, true));
    Pump();
    auto view = [this] { return pMap->GetTransformation()->GetCenterOfView(); };
    const PolarCoord before = view();
    Desk().KeyDown(VK_LEFT);
    Desk().AdvanceTime(1000);
    const PolarCoord held = view();
    EXPECT_NE(held, before);
    Desk().KeyUp(VK_LEFT);
    Desk().AdvanceTime(1000);
    EXPECT_EQ(view(), held);
}

// Full-screen mode fills the screen and brings the finder beside the map; Ctrl+F asks for the
// finder, so it switches to full-screen mode first. Escape on the map gives the window back.
TEST_F(HostMainFrameTest, FullScreenFillsTheScreenWithTheFinderAndEscapeGivesTheWindowBack)
{
    const TRect before = Main.GetWindowRect();
    for (const bool control : {false, true}) {
        Key(control ? 'F' : VK_F11, control);
        EXPECT_TRUE(Main.IsFullScreen()) << control;
        EXPECT_EQ(Main.GetWindowRect().Size(), Desk().GetScreenSize());
        EXPECT_EQ(pWindow->GetClientRect().Height(),
                  Desk().GetScreenSize().cy - HostTitleBar::kHeight)
            << "the component is laid out on the new size";
        EXPECT_NE(pWindow->GetFinderWindow(), nullptr);
        pMap->SetFocus();
        Key(VK_ESCAPE);
        EXPECT_FALSE(Main.IsFullScreen());
        EXPECT_EQ(Main.GetWindowRect(), before);
        EXPECT_EQ(pWindow->GetFinderWindow(), nullptr);
    }
}

// A bookmark keeps the view with its title; choosing it brings the view back; one cut short
// is refused with the keys it lacks and changes nothing; deleting asks first.
TEST_F(HostMainFrameTest, BookmarksAreKeptListedRestoredRefusedAndDeleted)
{
    pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), 20));
    Key('B', true);
    const std::vector<HostBookmark> kept = HostBookmarkList().Read();
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_NE(Main.GetTitleBar()->GetNote().find(kept[0].Title), std::string::npos);
    EXPECT_NE(ShownMenu().find("Bookmarks {" + kept[0].Title + " | - | Delete Bookmark {"),
              std::string::npos);

    pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), 60));
    OpenMenu([](PopupMenuWindow& menu) {
        HeadlessBackend::ChooseMenuItem(menu, HostMainFrame::kFirstBookmarkCommand);
    });
    EXPECT_NEAR(Radius(), 20, 1e-6) << "the bookmark's view is back";

    std::string cut = kept[0].Command;
    cut.erase(cut.find("Time="), 5);
    EXPECT_EQ(HostBookmarkList::MissingKeys(cut), std::vector<std::string>{"MapWindow.Time"});
    EXPECT_EQ(HostBookmarkList::MissingKeys("FullState=1").size(), 1u) << "AstroNoxWindow alone";
    Desk().AnswerNextModal([this](TWindow& box) {
        Messages.push_back(box.ChildWithId(-1)->GetWindowText());
        HeadlessBackend::PressButton(box, IDOK);
    });
    EXPECT_FALSE(Main.OpenBookmark(HostBookmark("orbiscope", "Cut", cut)));
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_NE(Messages[0].find("MapWindow.Time"), std::string::npos) << Messages[0];
    EXPECT_NEAR(Radius(), 20, 1e-6);

    for (int answer : {IDNO, IDYES}) {
        Desk().AnswerNextModal(
            [answer](TWindow& box) { HeadlessBackend::PressButton(box, answer); });
        Main.DoCommand(HostMainFrame::kFirstDeleteCommand);
        EXPECT_EQ(HostBookmarkList().Read().size(), answer == IDNO ? 1u : 0u);
    }
}

// The first start asks for the place: cancelled, nothing is kept and the next start asks
// again; answered, the next start opens there without asking.
TEST_F(HostMainFrameTest, TheFirstStartAsksForThePlaceUntilItIsGiven)
{
    EXPECT_FALSE(AstroNoxWindow::HasDefaultState());
    Restart(IDOK);
    EXPECT_TRUE(AstroNoxWindow::HasDefaultState());
    Restart(IDCANCEL);
    EXPECT_EQ(pMap->GetLocationName(), "Quito");
}

TEST_F(HostMainFrameTest, TheWindowsStateKeptAtAKeyBringsItsViewBack)
{
    pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), 20));
    pWindow->SaveInRegistryState("SOFTWARE\\Orbiscope Test\\Kept");
    pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), 60));
    pWindow->RestoreFromRegistryState("SOFTWARE\\Orbiscope Test\\Kept");
    EXPECT_NEAR(Radius(), 20, 1e-6);
    EXPECT_FALSE(AstroNoxWindow::HasDefaultState()) << "not the default state";
}

// F1 opens the help page at its top over the map, and at the dialog's section in a dialog.
TEST_F(HostMainFrameTest, FOneOpensTheHelpPageAndAModuleRequestWithoutAStarterIsPassedOver)
{
    Key(VK_F1);
    Desk().AnswerNextModal([](TWindow& dialog) {
        Desk().PressKey(VK_F1);
        HeadlessBackend::PressButton(dialog, IDCANCEL);
    });
    Key('G', true);
    ASSERT_EQ(Launched.size(), 2u);
    EXPECT_EQ(Launched[0].rfind("file://", 0), 0u) << Launched[0];
    EXPECT_NE(Launched[0].find("/orbiscope-help.html#planetarium"), std::string::npos)
        << Launched[0];
    EXPECT_NE(Launched[1].find("/orbiscope-help.html#ascension-declination-lines"),
              std::string::npos)
        << Launched[1];

    HostBookmark game("nonesuch");
    EXPECT_EQ(Main.SendMessage(kHostStartModule, 0, reinterpret_cast<LPARAM>(&game)), 0);
}

} // namespace
