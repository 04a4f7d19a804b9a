// How long the finder takes from a key typed into its name field to the row selected for it,
// the deliberate pause before the search aside (the clock is virtual): the field's change, the
// timer's ticks, the search by halves and the list's repaint. Over the list of every named star
// of the shipped files, and over a list of 20,000 names, which no keystroke may feel.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/AstroItemCollector.h"
#include "host/HostEdit.h"
#include "platform/TComboBox.h"
#include "platform/TWindow.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "shell/AstroFinderWindow.h"
#include "shell/AstroListBox.h"

namespace {

// The search runs at the second tick after the last key.
constexpr DWORD kTwoTicks = 1000;
constexpr int kStarsRow = 2;
constexpr int kManyNames = 20000;

// A named object and nothing more.
class NamedObject : public AstroObject
{
public:
    explicit NamedObject(std::string name)
        : AstroObject(ObjectType::OtherObject), Name(std::move(name))
    {}
    std::string GetListName() const override { return Name; }
    bool HasListName() const override { return true; }
    bool IsLessThan(const AstroObject& other) const override { return Name < other.GetListName(); }
    PolarCoord GetPosition() const override { return PolarCoord(); }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override { Point = point; }
    bool IsTimeDependent() const override { return false; }
    void Draw(TDC&, DisplayParameters&) override {}

private:
    std::string Name;
    TPoint Point;
};

// A catalogue of `count` names of five letters, "Aaaaa" on.
class ManyNames : public AstroCatalogue
{
public:
    explicit ManyNames(int count) : nCount(count) {}
    bool IsTimeDependent() const override { return false; }
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override
    {
        auto list = std::make_unique<PointerVector<AstroObject>>(true);
        for (int i = 0; i < nCount; ++i) {
            std::string name = "Aaaaa";
            for (int at = 4, rest = i; at > 0; --at, rest /= 26) {
                name[std::size_t(at)] = char('a' + rest % 26);
            }
            list->push_back(new NamedObject(name));
        }
        return list;
    }

private:
    int nCount;
};

// A finder in a window of its own, with the name field holding the focus.
struct FinderOnDesk
{
    FinderOnDesk()
    {
        Headless();
        Finder = new AstroFinderWindow(&Frame, nullptr, &Collector, 0);
        Frame.Create();
        Finder->MoveWindow(0, 0, 220, 700);
        WindowSystem::Get().ProcessAll();
    }
    ~FinderOnDesk()
    {
        Frame.Destroy();
        WindowSystem::Get().ProcessAll();
    }
    // Writes `text` less its last letter into the field and lets its search run; then types
    // the last letter, which the timing counts, and waits for its search.
    void Keystroke(benchmark::State& state, const std::string& text)
    {
        state.PauseTiming();
        Finder->GetNameEdit().SetText(text.substr(0, text.size() - 1));
        Finder->GetNameEdit().SetSelection(int(text.size()), int(text.size()));
        Headless().AdvanceTime(kTwoTicks);
        state.ResumeTiming();
        Headless().Type(text.substr(text.size() - 1));
        Headless().AdvanceTime(kTwoTicks);
    }

    AstroItemCollector Collector;
    TWindow Frame{nullptr, "Finder"};
    AstroFinderWindow* Finder;
};

void RunKeystrokes(benchmark::State& state, FinderOnDesk& desk,
                   const std::vector<std::string>& names)
{
    std::size_t next = 0;
    for (auto _ : state) {
        desk.Keystroke(state, names[next++ % names.size()]);
        benchmark::DoNotOptimize(desk.Finder->GetSelectedObject());
    }
    state.counters["names"] = double(desk.Finder->GetObjectList().GetCount());
}

void KeystrokeToSelectedStar(benchmark::State& state)
{
    FinderOnDesk desk;
    desk.Finder->GetListTypeBox().SetSelIndex(kStarsRow);
    desk.Finder->CbnListTypeChange();
    RunKeystrokes(state, desk, {"Sir", "Veg", "Alt", "Bet", "Rig", "Ald", "Den", "Pol", "Arc"});
}
BENCHMARK(KeystrokeToSelectedStar)->Unit(benchmark::kMicrosecond);

void KeystrokeToSelectedNameOfMany(benchmark::State& state)
{
    FinderOnDesk desk;
    ManyNames names(kManyNames);
    desk.Finder->GetObjectList().SetCatalogue(&names);
    RunKeystrokes(state, desk, {"Abc", "Akq", "Azz", "Amn", "Abz", "Aby", "Ajk", "Arx", "Aee"});
}
BENCHMARK(KeystrokeToSelectedNameOfMany)->Unit(benchmark::kMicrosecond);

// Filling the list with every named star: what choosing "Stars" costs.
void FillStarList(benchmark::State& state)
{
    FinderOnDesk desk;
    for (auto _ : state) {
        desk.Finder->GetObjectList().SetCatalogue(desk.Collector.GetStarCatalogue());
    }
    state.counters["names"] = double(desk.Finder->GetObjectList().GetCount());
}
BENCHMARK(FillStarList)->Unit(benchmark::kMillisecond);

} // namespace
