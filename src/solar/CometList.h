#pragma once
// The list of comets the map shows: those the profile names, or two built-in ones when it names
// none. A catalogue of comet views makes one view per entry, in this order, and takes the
// index for the view's identity, so an entry's index never changes with the entries around it.
#include "solar/CometElements.h"

#include <vector>

class HostProf;

// One comet of the list: its index (the number of its profile key less one) and its orbit.
struct ListedComet
{
    unsigned Index = 0;
    CometElements Elements;
};

// Reads section "Orbiscope": the integer "NumberOfComets" (0 when missing), then the records
// "Comet1" to "Comet<NumberOfComets>" (see Comet::Initialize for their form), in the order of
// their numbers. Below 1 comet the list is BuiltInComets(). A missing or empty key leaves a gap
// in the indices and none in the list; a refused record does the same, with its message on
// dbstream. Only keys that exist are read, so a huge count costs no more than a small one.
std::vector<ListedComet> LoadCometList(const HostProf& profile);

// "Hale-Bopp" (index 0) and "Halley's" (index 1), with elements of their last passages.
std::vector<ListedComet> BuiltInComets();
