// Turns a text star catalogue into a star file, through the planetarium's own reading and
// writing: the collector loads the text as the user's catalogue and dumps it, 64 segments,
// positions as the text gives them (J2000 for the shipped files). The file is then read back
// segment by segment and compared with the text, star for star.
//
//   star_binary TEXT BINARY [DEPTH]
//
// The header's magnitude, which the collector compares with the limiting magnitude to choose a
// file, is the faintest star's unless DEPTH is given: the magnitude to which the file is
// complete, for a file that also holds a thinning tail of fainter stars.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "catalogues/AstroItemCollector.h"
#include "catalogues/StarCatalogue.h"
#include "catalogues/TextFile.h"
#include "coords/DegreeAngle.h"
#include "coords/SkyRange.h"
#include "host/HostFile.h"

namespace {

struct Totals
{
    long Stars = 0;
    long Named = 0;
};

Totals Count(const SegmentTable& table)
{
    Totals totals;
    for (const Segment& segment : table) {
        if (const StarArray* stars = segment.GetStars()) {
            totals.Stars += long(stars->size());
            for (const Star* star : *stars) {
                totals.Named += star->HasName() ? 1 : 0;
            }
        }
    }
    return totals;
}

// True when both catalogues hold the same stars in the same segments, field for field.
bool SameStars(const SegmentTable& a, const SegmentTable& b)
{
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        const StarArray* left = a[i].GetStars();
        const StarArray* right = b[i].GetStars();
        std::size_t leftCount = left ? left->size() : 0;
        std::size_t rightCount = right ? right->size() : 0;
        if (leftCount != rightCount) {
            return false;
        }
        for (std::size_t k = 0; k < leftCount; ++k) {
            const Star& s = *(*left)[k];
            const Star& t = *(*right)[k];
            // Names byte for byte: the file must keep them exactly as the text has them.
            if (s.GetSAONumber() != t.GetSAONumber() || s.GetMagnitude() != t.GetMagnitude() ||
                !(s.GetPosition() == t.GetPosition()) || s.GetListName() != t.GetListName()) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: star_binary TEXT BINARY [DEPTH]\n");
        return 2;
    }
    const std::string textName = argv[1];
    const std::string binaryName = argv[2];
    char* end = nullptr;
    const double depth = argc == 4 ? std::strtod(argv[3], &end) : 0.0;
    if (argc == 4 && (end == argv[3] || *end != '\0')) {
        std::fprintf(stderr, "star_binary: DEPTH must be a magnitude, not %s\n", argv[3]);
        return 2;
    }

    TextFile text;
    if (!text.OpenForReading(textName.c_str())) {
        std::fprintf(stderr, "star_binary: cannot read %s\n", textName.c_str());
        return 1;
    }
    AstroItemCollector collector;
    if (!collector.LoadStars(text)) {
        std::fprintf(stderr, "star_binary: %s has a line that is not a star (line %ld)\n",
                     textName.c_str(), text.GetLineNumber());
        return 1;
    }
    if (!collector.DumpStarsBinary(binaryName)) {
        std::fprintf(stderr, "star_binary: cannot write %s\n", binaryName.c_str());
        return 1;
    }
    const StarCatalogue& source = *collector.GetUserCatalogue();
    const double statedDepth = argc == 4 ? depth : source.GetMaxMagnitude();
    if (argc == 4) {
        HostFile header(binaryName, HostFile::ReadWrite);
        if (!header.IsOpen() || !header.WriteDouble(depth)) {
            std::fprintf(stderr, "star_binary: cannot state the depth in %s\n", binaryName.c_str());
            return 1;
        }
    }

    // Read the file back whole: its header, then every segment, through the index classes.
    HostFile file(binaryName, HostFile::ReadOnly);
    double maxMagnitude = 0.0;
    SegmentTable written;
    if (!file.IsOpen() || !file.ReadDouble(maxMagnitude) || !written.Load(file)) {
        std::fprintf(stderr, "star_binary: cannot read back %s\n", binaryName.c_str());
        return 1;
    }
    written.Update(file, SkyRange(true));
    if (maxMagnitude != statedDepth || !SameStars(source.GetSegments(), written)) {
        std::fprintf(stderr, "star_binary: %s does not read back as the text\n",
                     binaryName.c_str());
        return 1;
    }

    Totals totals = Count(written);
    std::printf(
        "%s: %ld stars (%ld named) in %zu segments, faintest %.2f, header %.2f, %ld bytes\n",
        binaryName.c_str(), totals.Stars, totals.Named, written.size(), source.GetMaxMagnitude(),
        maxMagnitude, file.Length());
    return 0;
}
