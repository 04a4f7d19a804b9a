#include "catalogues/StarArray.h"

#include <algorithm>
#include <memory>

#include "host/HostFile.h"

StarArray::~StarArray()
{
    for (Star* star : *this) {
        delete star;
    }
}

void StarArray::Add(Star* star)
{
    push_back(star);
    if (nBytes != 0) {
        ++nStars;
        nBytes += std::int32_t(star->GetRecordSize());
    }
}

bool StarArray::Load(HostFile& file)
{
    const std::int32_t promised = nStars > 0 ? nStars : 0;
    if (promised == 0 || nBytes <= 0) {
        nStars = 0;
        nBytes = 0;
        return promised == 0;
    }
    // Never more bytes than the file holds beyond this point, so a damaged header cannot ask
    // for an absurd buffer; a position past the end holds none.
    const long here = file.Tell();
    const long length = file.Length();
    const std::size_t available = here >= 0 && length > here ? std::size_t(length - here) : 0;
    const std::size_t wanted = std::min(std::size_t(nBytes), available);
    std::unique_ptr<unsigned char[]> buffer(new unsigned char[wanted == 0 ? 1 : wanted]);
    std::size_t got = file.Read(buffer.get(), wanted);

    reserve(std::min(std::size_t(promised), got / Star::kRecordHeaderSize));
    const unsigned char* p = buffer.get();
    std::size_t left = got;
    while (std::int32_t(size()) < promised) {
        auto star = std::make_unique<Star>();
        const void* next = star->Load(p, left);
        if (next == nullptr) {
            break;
        }
        left -= std::size_t(static_cast<const unsigned char*>(next) - p);
        p = static_cast<const unsigned char*>(next);
        push_back(star.release());
    }
    nStars = std::int32_t(size());
    nBytes = std::int32_t(got - left);
    return nStars == promised;
}

bool StarArray::Dump(HostFile& file) const
{
    for (const Star* star : *this) {
        if (!star->Dump(file)) {
            return false;
        }
    }
    return true;
}

void StarArray::Dump(std::ostream& out) const
{
    for (const Star* star : *this) {
        star->Dump(out);
    }
}

std::int32_t StarArray::GetByteSize()
{
    if (nBytes == 0) {
        nStars = std::int32_t(size());
        std::size_t bytes = 0;
        for (const Star* star : *this) {
            bytes += star->GetRecordSize();
        }
        nBytes = std::int32_t(bytes);
    }
    return nBytes;
}
