#pragma once
// The catalogues a request wants: a 32-bit word of AstroCatalogue::AstroCatalogues flags
// (1 stars, 2 planets, 4 Messier objects, 8 constellations, 0x10 comets), empty at first.
#include <cstdint>

#include "catalogues/AstroCatalogue.h"

class CatalogueSet
{
public:
    CatalogueSet() = default;
    explicit CatalogueSet(std::uint32_t word) : nWord(word) {}

    void Add(AstroCatalogue::AstroCatalogues flag) { nWord |= flag; }
    bool Has(AstroCatalogue::AstroCatalogues flag) const { return (nWord & flag) != 0; }
    std::uint32_t GetWord() const { return nWord; }

    // The whole words, unknown bits included.
    bool operator==(const CatalogueSet& other) const { return nWord == other.nWord; }
    bool operator!=(const CatalogueSet& other) const { return nWord != other.nWord; }

private:
    std::uint32_t nWord = 0;
};
