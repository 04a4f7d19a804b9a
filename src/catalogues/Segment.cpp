#include "catalogues/Segment.h"

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "catalogues/Star.h"
#include "host/HostFile.h"
#include "platform/DebugStream.h"

Segment::Segment(const Segment& other)
    : Range(other.Range), FileOffset(other.FileOffset), StarCount(other.StarCount),
      ByteSize(other.ByteSize)
{}

Segment& Segment::operator=(const Segment& other)
{
    if (this != &other) {
        pStars.reset();
        Range = other.Range;
        FileOffset = other.FileOffset;
        StarCount = other.StarCount;
        ByteSize = other.ByteSize;
    }
    return *this;
}

bool Segment::LoadHeader(HostFile& file)
{
    DegreeRange ra, dec;
    std::int32_t offset = 0, count = 0, bytes = 0;
    if (!ra.Load(file) || !dec.Load(file) || !file.ReadInt32(offset) || !file.ReadInt32(count) ||
        !file.ReadInt32(bytes)) {
        return false;
    }
    Range = SkyRange(ra, dec);
    FileOffset = offset;
    StarCount = count;
    ByteSize = bytes;
    return true;
}

bool Segment::DumpHeader(HostFile& file, std::int32_t fileOffset, std::int32_t starCount,
                         std::int32_t byteSize) const
{
    bool written = Range.GetRA().Dump(file);
    written = Range.GetDec().Dump(file) && written;
    written = file.WriteInt32(fileOffset) && written;
    written = file.WriteInt32(starCount) && written;
    return file.WriteInt32(byteSize) && written;
}

bool Segment::Load(HostFile& file)
{
    if (pStars) {
        return true;
    }
    pStars = std::make_unique<StarArray>(StarCount, ByteSize);
    if (StarCount <= 0) {
        return true;
    }
    if (!file.Seek(FileOffset) || !pStars->Load(file)) {
        dbstream << "Star file " << file.GetPath() << ": the segment at offset " << FileOffset
                 << " gave " << pStars->size() << " of its " << StarCount << " stars." << dbendl;
        return false;
    }
    return true;
}

void Segment::AddStar(std::unique_ptr<Star> star)
{
    if (!pStars) {
        pStars = std::make_unique<StarArray>();
    }
    ByteSize += std::int32_t(star->GetRecordSize());
    pStars->Add(star.release());
}

void Segment::SatisfyRequest(const Request& request, AstroList& list)
{
    if (!pStars) {
        return;
    }
    const Transformation& view = request.GetView();
    const SkyRange visible = view.GetVisibleRange();
    const double limit = request.GetLimitingMagnitude();
    TPoint point;

    const ScrollTransformation* scroll = request.GetActiveScroll();
    if (scroll == nullptr) {
        for (Star* star : *pStars) {
            star->FlushDisplayCache();
            if (star->GetMagnitude() > limit) {
                continue;
            }
            const PolarCoord position = star->GetPosition();
            if (!visible.Contains(position) || !view.Translate(position, point)) {
                continue;
            }
            star->SetDisplayPoint(point);
            list.Add(star);
        }
        return;
    }

    // A frame of a scroll: the colours stay, and each star moves by its stored vector. A star
    // that is passed over gives its vector up, since it misses the rotations of the frames in
    // which it is not shown.
    const bool keep = request.KeepsScrollCache();
    for (Star* star : *pStars) {
        if (star->GetMagnitude() > limit) {
            star->DropScrollCache();
            continue;
        }
        const PolarCoord position = star->GetPosition();
        if (!visible.Contains(position)) {
            star->DropScrollCache();
            continue;
        }
        RectCoord& vector = star->GetScrollCache();
        if (keep && star->HasScrollCache()) {
            scroll->Rotate(vector);
        } else {
            star->SetScrollCache(scroll->GetRectCoord(position));
        }
        if (scroll->Translate(vector, point)) {
            star->SetDisplayPoint(point);
            list.Add(star);
        }
    }
}

void Segment::GetNamedStars(std::vector<AstroObject*>& list) const
{
    if (!pStars) {
        return;
    }
    for (const Star* star : *pStars) {
        if (star->HasListName()) {
            list.push_back(new Star(*star));
        }
    }
}

Star* Segment::FindStar(std::uint32_t saoNumber) const
{
    if (!pStars) {
        return nullptr;
    }
    for (Star* star : *pStars) {
        if (star->GetSAONumber() == saoNumber) {
            return star;
        }
    }
    return nullptr;
}
