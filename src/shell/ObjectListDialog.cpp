#include "shell/ObjectListDialog.h"

#include <algorithm>

#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroObject.h"
#include "host/HostStringTable.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "shell/AstroDialogTemplates.h"

namespace {

constexpr short kCaption = 0x9c4;
// The text of row n is string 0x456 + 10 n: "Constellations", "Planets", ...
constexpr short kFirstRowText = 0x456;
constexpr short kRowTextStep = 10;
constexpr int kPlanetRow = 1;

} // namespace

const AstroCatalogue::AstroCatalogues ObjectListDialog::kRowCatalogues[kRowCount] = {
    AstroCatalogue::CONSTELLATIONS, AstroCatalogue::PLANETS, AstroCatalogue::STARS,
    AstroCatalogue::MESSIER_OBJECTS, AstroCatalogue::COMETS};

ObjectListDialog::ObjectListDialog(TWindow* parent, AstroItemCollector& collector,
                                   AstroCatalogue::AstroCatalogues catalogue)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kObjectList)), Collector(collector),
      InitialCatalogue(catalogue)
{
    pCatalogues = new TComboBox(this, kCatalogueList);
    pObjects = new TListBox(this, kObjectList);
}

ObjectListDialog::~ObjectListDialog() = default;

int ObjectListDialog::RowOf(AstroCatalogue::AstroCatalogues catalogue)
{
    for (int row = 0; row < kRowCount; ++row) {
        if (kRowCatalogues[row] == catalogue) {
            return row;
        }
    }
    return kPlanetRow;
}

std::string ObjectListDialog::GetHelpKey() const
{
    return ProfileHelpKey("ObjectListDialogHelpKey", "Planetarium");
}

void ObjectListDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));
    pCatalogues->ClearList();
    for (int row = 0; row < kRowCount; ++row) {
        pCatalogues->AddString(getHostString(5, short(kFirstRowText + row * kRowTextStep)));
    }
    pCatalogues->SetSelIndex(RowOf(InitialCatalogue));
    FillObjectList();
}

AstroCatalogue* ObjectListDialog::CatalogueOfRow(int row)
{
    return Collector.GetCatalogue(row >= 0 && row < kRowCount ? kRowCatalogues[row]
                                                              : AstroCatalogue::PLANETS);
}

void ObjectListDialog::FillObjectList()
{
    pShownList.reset();
    AstroCatalogue* catalogue = CatalogueOfRow(pCatalogues->GetSelIndex());
    if (catalogue) {
        pShownList = catalogue->GetListOfNamedObjects();
    }
    if (!pShownList) {
        pShownList = std::make_unique<PointerVector<AstroObject>>(false);
    }
    std::stable_sort(pShownList->begin(), pShownList->end(),
                     [](const AstroObject* a, const AstroObject* b) { return a->IsLessThan(*b); });
    pObjects->ClearList();
    for (const AstroObject* object : *pShownList) {
        pObjects->AddString(object->GetListName());
    }
}

void ObjectListDialog::CbnCatalogueChanged()
{
    FillObjectList();
}

void ObjectListDialog::CmOk()
{
    int row = pObjects->GetSelIndex();
    AstroDialog::CmOk();
    if (row >= 0 && pShownList && std::size_t(row) < pShownList->size()) {
        pChosenObject = (*pShownList)[std::size_t(row)];
    }
}

const TResponseRow* ObjectListDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        NotifyRow<kCatalogueList, CBN_SELCHANGE, &ObjectListDialog::CbnCatalogueChanged>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
