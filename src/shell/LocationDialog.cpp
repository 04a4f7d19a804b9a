#include "shell/LocationDialog.h"

#include <cmath>
#include <cstdlib>

#include "catalogues/LorvString.h"
#include "catalogues/StringParser.h"
#include "catalogues/TextFile.h"
#include "coords/DegreesMinutesSecondsArc.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "platform/TCheckBox.h"
#include "platform/TComboBox.h"
#include "platform/TEdit.h"
#include "platform/TListBox.h"
#include "shell/AstroDialogTemplates.h"

namespace {

constexpr short kCaption = 0xa28;
constexpr short kNorth = 0x51e;
constexpr short kSouth = 0x528;
constexpr short kEast = 0x532;
constexpr short kWest = 0x53c;
constexpr short kNoZoneRow = 0xa64;
constexpr short kBadLatitude = 0x1006;
constexpr short kBadLongitude = 0x1007;
constexpr short kNoZone = 0x1008;
constexpr short kNotTheSystemZone = 0x1072;

// Degrees, minutes and seconds of three fields as one value in degrees.
double ReadArc(double degrees, double minutes, double seconds)
{
    return DegreesMinutesSecondsArc(degrees, minutes, seconds, 1).GetValue();
}

} // namespace

LocationDialog::LocationDialog(TWindow* parent)
    : LocationDialog(parent, std::string(), LatLong(0.0, 0.0), TimeZone::GetSystemTimeZone())
{}

LocationDialog::LocationDialog(TWindow* parent, const std::string& name, const LatLong& location,
                               const TimeZone& zone)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kLocation)), Location(location),
      LocationName(name), Zone(zone)
{
    pCityName = new TEdit(this, kCityName);
    pCities = new TListBox(this, kCities);
    pNorthSouth = new TComboBox(this, kNorthSouth);
    pWestEast = new TComboBox(this, kWestEast);
    pZones = new TComboBox(this, kZones);
    pAutomaticDST = new TCheckBox(this, kAutomaticDST);
}

LocationDialog::~LocationDialog() = default;

std::string LocationDialog::CityListPath()
{
    return HostProfile().GetPath("Orbiscope", "CityList", "ed:\\astcity.txt");
}

LocationDialog::CityList LocationDialog::ReadCityList(const std::string& path)
{
    CityList cities;
    TextFile file;
    if (!file.OpenForReading(path.c_str())) {
        return cities;
    }
    for (const char* line = file.GetNextLine(); line != nullptr; line = file.GetNextLine()) {
        StringParser parser(line, "|", true);
        LorvString* city = parser.GetNextToken();
        if (city == nullptr) {
            continue; // a blank line names no city
        }
        CityInfo info;
        info.Name = *city;
        info.Name += ", ";
        info.Name += *parser.GetNextToken("");
        if (info.Set(parser)) {
            LorvString* code = parser.GetNextToken();
            if (code != nullptr && code->size() > 1) {
                unsigned long number = std::strtoul(code->c_str() + 1, nullptr, 10);
                const TimeZone* zone =
                    number <= 0xFFFFFFFFul ? TimeZone::GetTimeZone(unsigned(number)) : nullptr;
                if (zone != nullptr) {
                    info.pZone = std::make_unique<TimeZone>(*zone);
                }
            }
        }
        cities.push_back(std::move(info));
    }
    return cities;
}

std::string LocationDialog::GetHelpKey() const
{
    return ProfileHelpKey("LocationDialogHelpKey", "Planetarium");
}

void LocationDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));

    Cities = ReadCityList(CityListPath());
    pCities->ClearList();
    for (std::size_t i = 0; i < Cities.size(); ++i) {
        int row = pCities->AddString(Cities[i].Name);
        pCities->SetItemData(row, LPARAM(i));
    }

    pNorthSouth->ClearList();
    pNorthSouth->AddString(getHostString(5, kNorth));
    pNorthSouth->AddString(getHostString(5, kSouth));
    pNorthSouth->SetSelIndex(0);
    pWestEast->ClearList();
    pWestEast->AddString(getHostString(5, kWest));
    pWestEast->AddString(getHostString(5, kEast));
    pWestEast->SetSelIndex(0);

    // The zone of the dialog by its name, or else the first zone of the same rules.
    pZones->ClearList();
    const std::vector<TimeZone>& zones = TimeZone::GetAllTimeZones();
    std::string zoneName;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        int row = pZones->AddString(zones[i].GetDisplayName());
        pZones->SetItemData(row, LPARAM(i));
        if (EqualNoCase(zones[i].GetDisplayName(), Zone.GetDisplayName()) ||
            (zoneName.empty() && zones[i] == Zone)) {
            zoneName = zones[i].GetDisplayName();
        }
    }
    nNoZoneRow = pZones->AddString(getHostString(5, kNoZoneRow));
    pZones->SetItemData(nNoZoneRow, -1);
    SelectZone(zoneName);

    pCityName->SetFocus();
    if (!LocationName.empty()) {
        pCityName->SetText(LocationName);
        ShowPlace(Location);
    }
    pAutomaticDST->SetCheck(Zone.GetAutomaticDST() ? BST_CHECKED : BST_UNCHECKED);
}

void LocationDialog::SelectZone(const std::string& displayName)
{
    int row = displayName.empty() ? -1 : pZones->FindExactString(displayName);
    pZones->SetSelIndex(row >= 0 ? row : nNoZoneRow);
}

void LocationDialog::ShowPlace(const LatLong& place)
{
    double latitude = place.GetLatitude().GetDegrees();
    DegreesMinutesSecondsArc lat{DegreeAngle(std::fabs(latitude))};
    lat.Roundoff();
    SetDlgItemInt(kLatitudeDegrees, UINT(lat.GetDegrees()));
    SetDlgItemInt(kLatitudeMinutes, UINT(lat.GetMinutes()));
    SetDlgItemInt(kLatitudeSeconds, UINT(lat.GetSeconds()));
    pNorthSouth->SetSelIndex(latitude >= 0.0 ? 0 : 1);

    // Longitude is held west from 0 to 360; east longitudes show as their own value.
    double longitude = place.GetLongitude().GetDegrees();
    bool east = longitude >= 180.0;
    DegreesMinutesSecondsArc lon{DegreeAngle(std::fabs(east ? 360.0 - longitude : longitude))};
    lon.Roundoff();
    SetDlgItemInt(kLongitudeDegrees, UINT(lon.GetDegrees()));
    SetDlgItemInt(kLongitudeMinutes, UINT(lon.GetMinutes()));
    SetDlgItemInt(kLongitudeSeconds, UINT(lon.GetSeconds()));
    pWestEast->SetSelIndex(east ? 1 : 0);
}

void LocationDialog::EnCityNameChanged()
{
    if (!pCityName->HasFocus()) {
        return;
    }
    std::string typed = pCityName->GetText();
    if (typed.empty()) {
        return; // every row begins with nothing: the list stays where it is
    }
    int row = pCities->FindString(typed, 0);
    if (row >= 0) {
        pCities->SetSelIndex(row);
    }
}

void LocationDialog::LbnCityChanged()
{
    int row = pCities->GetSelIndex();
    if (row < 0) {
        for (int id : {kLatitudeDegrees, kLatitudeMinutes, kLatitudeSeconds, kLongitudeDegrees,
                       kLongitudeMinutes, kLongitudeSeconds}) {
            SetDlgItemText(id, "");
        }
        pNorthSouth->SetSelIndex(0);
        pWestEast->SetSelIndex(0);
        return;
    }
    LPARAM index = pCities->GetItemData(row);
    if (index < 0 || std::size_t(index) >= Cities.size()) {
        return;
    }
    const CityInfo& city = Cities[std::size_t(index)];
    ShowPlace(city);
    if (!pCityName->HasFocus()) {
        pCityName->SetText(city.Name);
    }
    SelectZone(city.pZone ? city.pZone->GetDisplayName() : std::string());
}

void LocationDialog::CmOk()
{
    std::string typed = pCityName->GetText();
    int row = pCities->GetSelIndex();
    std::string rowText = row >= 0 ? pCities->GetString(row) : std::string();
    if (typed.size() < rowText.size() && EqualNoCase(rowText.substr(0, typed.size()), typed)) {
        // A name typed in part: the city the list found is taken first.
        pCities->SetFocus();
        LbnCityChanged();
        return;
    }

    double latitude = ReadArc(ReadNumber(kLatitudeDegrees), ReadNumber(kLatitudeMinutes),
                              ReadNumber(kLatitudeSeconds));
    double longitude = ReadArc(ReadNumber(kLongitudeDegrees), ReadNumber(kLongitudeMinutes),
                               ReadNumber(kLongitudeSeconds));
    if (!(latitude > 0.0 && latitude <= 90.0)) {
        ShowMessage(getHostString(5, kBadLatitude));
        return;
    }
    if (!(longitude >= 0.0 && longitude <= 180.0)) {
        ShowMessage(getHostString(5, kBadLongitude));
        return;
    }
    bool north = EqualNoCase(pNorthSouth->GetText(), "N");
    bool west = EqualNoCase(pWestEast->GetText(), "W");
    LatLong place(north ? latitude : -latitude, west ? longitude : 360.0 - longitude);

    int zoneRow = pZones->GetSelIndex();
    LPARAM zoneIndex = zoneRow >= 0 ? pZones->GetItemData(zoneRow) : -1;
    const std::vector<TimeZone>& zones = TimeZone::GetAllTimeZones();
    if (zoneRow == nNoZoneRow || zoneIndex < 0 || std::size_t(zoneIndex) >= zones.size()) {
        ShowMessage(getHostString(5, kNoZone));
        pZones->SetFocus();
        return;
    }
    TimeZone zone = zones[std::size_t(zoneIndex)];
    if (zone != TimeZone::GetSystemTimeZone() &&
        ShowMessage(getHostString(5, kNotTheSystemZone), MB_YESNO) != IDYES) {
        return;
    }
    zone.SetAutomaticDST(pAutomaticDST->IsChecked());

    LocationName = typed;
    Location = place;
    Zone = zone;
    AstroDialog::CmOk();
}

const TResponseRow* LocationDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        NotifyRow<kCityName, EN_CHANGE, &LocationDialog::EnCityNameChanged>(),
        NotifyRow<kCities, LBN_SELCHANGE, &LocationDialog::LbnCityChanged>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
