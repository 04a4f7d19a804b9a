#include "catalogues/SegmentTable.h"

#include <cstring>

#include "catalogues/Star.h"
#include "catalogues/TextFile.h"
#include "coords/SkyRange.h"
#include "host/HostFile.h"
#include "platform/DebugStream.h"

namespace {

struct Zone
{
    double DecFrom;
    double DecTo;
    int Slices;
};

// North to south; each zone's slices start at RA 0 and the last ends at 360.
constexpr Zone kZones[] = {
    {50.0, 90.0, 8},  {20.0, 50.0, 12},   {0.0, 20.0, 12},
    {-20.0, 0.0, 12}, {-50.0, -20.0, 12}, {-90.0, -50.0, 8},
};

bool IsBlank(const char* line)
{
    return line[std::strspn(line, " \t\r")] == '\0';
}

} // namespace

void SegmentTable::BuildEmptySegments()
{
    clear();
    for (const Zone& zone : kZones) {
        const double width = 360.0 / zone.Slices;
        for (int slice = 0; slice < zone.Slices; ++slice) {
            DegreeRange ra(slice * width, (slice + 1) * width);
            DegreeRange dec(zone.DecFrom, zone.DecTo);
            emplace_back(SkyRange(ra, dec));
        }
    }
}

bool SegmentTable::Load(HostFile& file)
{
    clear();
    std::int32_t count = 0;
    if (!file.ReadInt32(count)) {
        return false;
    }
    for (std::int32_t i = 0; i < count; ++i) {
        Segment segment;
        if (!segment.LoadHeader(file)) {
            return false;
        }
        push_back(segment);
    }
    return true;
}

bool SegmentTable::Load(TextFile& text, double& maxMagnitude)
{
    BuildEmptySegments();
    bUnloadWhenOutOfView = false;
    maxMagnitude = -20.0;
    while (const char* line = text.GetNextLine()) {
        if (IsBlank(line)) {
            continue;
        }
        auto star = std::make_unique<Star>();
        if (!star->Initialize(line)) {
            dbstream << "Star data at line: " << text.GetLineNumber() << " is invalid." << dbendl;
            return false;
        }
        double magnitude = star->GetMagnitude();
        AddStar(std::move(star));
        if (magnitude > maxMagnitude) {
            maxMagnitude = magnitude;
        }
    }
    return true;
}

void SegmentTable::Update(HostFile& file, const SkyRange& visible)
{
    for (Segment& segment : *this) {
        if (segment.GetRange().Intersects(visible)) {
            segment.Load(file);
        } else if (bUnloadWhenOutOfView) {
            segment.Unload();
        }
    }
}

void SegmentTable::SatisfyRequest(const Request& request, AstroList& list)
{
    for (Segment& segment : *this) {
        segment.SatisfyRequest(request, list);
    }
}

bool SegmentTable::AddStar(std::unique_ptr<Star> star)
{
    const PolarCoord position = star->GetPosition();
    for (Segment& segment : *this) {
        if (segment.GetRange().Contains(position)) {
            segment.AddStar(std::move(star));
            return true;
        }
    }
    return false;
}

bool SegmentTable::Dump(HostFile& file)
{
    const long start = file.Tell();
    if (start < 0) {
        return false;
    }
    std::int64_t offset = start + 4 + std::int64_t(Segment::kHeaderSize) * std::int64_t(size());

    bool written = file.WriteInt32(std::int32_t(size()));
    for (Segment& segment : *this) {
        StarArray* stars = segment.GetStars();
        std::int32_t starCount = stars ? std::int32_t(stars->size()) : 0;
        std::int32_t byteSize = stars ? stars->GetByteSize() : 0;
        written = segment.DumpHeader(file, std::int32_t(offset), starCount, byteSize) && written;
        offset += byteSize;
    }
    for (const Segment& segment : *this) {
        if (const StarArray* stars = segment.GetStars()) {
            written = stars->Dump(file) && written;
        }
    }
    return written;
}

int SegmentTable::GetLoadedCount() const
{
    int loaded = 0;
    for (const Segment& segment : *this) {
        loaded += segment.IsLoaded() ? 1 : 0;
    }
    return loaded;
}
