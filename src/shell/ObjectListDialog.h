#pragma once
// The dialog that picks an object to locate: a drop-down of the five catalogues and a list of
// the named objects of the chosen one, in name order. After OK with a row selected the chosen
// object is that row's; it belongs to the catalogue's list, which lives as long as the dialog,
// so a caller that keeps the object past the dialog adds a reference to it.
#include <memory>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/PointerVector.h"
#include "shell/AstroDialog.h"

class AstroItemCollector;
class AstroObject;
class TComboBox;
class TListBox;

class ObjectListDialog : public AstroDialog
{
public:
    // Control ids.
    static constexpr int kCatalogueList = 0x65;
    static constexpr int kObjectList = 0x66;

    // The catalogue rows, in their order: constellations, planets, stars, Messier objects,
    // comets.
    static constexpr int kRowCount = 5;
    static const AstroCatalogue::AstroCatalogues kRowCatalogues[kRowCount];

    // Opens on the row of `catalogue`; a value that is no single catalogue opens on the
    // planets.
    ObjectListDialog(TWindow* parent, AstroItemCollector& collector,
                     AstroCatalogue::AstroCatalogues catalogue);
    ~ObjectListDialog() override;

    // The object chosen with OK; null when none was (or before OK).
    AstroObject* GetChosenObject() const { return pChosenObject; }
    // The objects the list box shows, in its order.
    const PointerVector<AstroObject>* GetShownList() const { return pShownList.get(); }

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmOk() override;
    // The catalogue row changed: the list shows its objects.
    void CbnCatalogueChanged();
    const TResponseRow* Find(const TEventInfo& event) const override;

    // The row of a catalogue, or the planets' row.
    static int RowOf(AstroCatalogue::AstroCatalogues catalogue);

private:
    // Fills the list box with the named objects of the selected row's catalogue.
    void FillObjectList();
    // The catalogue of a row; null when it has none (no star file).
    AstroCatalogue* CatalogueOfRow(int row);

    AstroItemCollector& Collector;
    AstroObject* pChosenObject = nullptr;
    AstroCatalogue::AstroCatalogues InitialCatalogue;
    std::unique_ptr<PointerVector<AstroObject>> pShownList;

    TComboBox* pCatalogues;
    TListBox* pObjects;
};
