#pragma once
// The system's tree of compiled IANA zone files, /usr/share/zoneinfo on Debian (tzdata), or
// the directory that TZDIR names, as the C library also takes it.
//
// A zone's name is its path below the root, "Europe/Berlin". The tree also holds the "posix/"
// and "right/" copies (the latter with leap seconds), text tables such as zone.tab, and three
// files that are not zones of a place: "localtime" (a link to the machine's zone),
// "posixrules" (the default rule of the C library) and "Factory" (the "not yet set" zone).
// None of these is listed.
#include <string>
#include <vector>

class TimeZoneDirectory
{
public:
    // The default root: $TZDIR when set and not empty, otherwise /usr/share/zoneinfo.
    TimeZoneDirectory();
    explicit TimeZoneDirectory(std::string root);

    static std::string DefaultRoot();

    const std::string& GetRoot() const { return Root; }
    bool Exists() const;

    // The names of the zone files in the tree, ordered by name without regard to case (and
    // by bytes among names that differ in case only), so the order is the same on every run.
    std::vector<std::string> GetZoneNames() const;
    // The file of a zone.
    std::string GetPath(const std::string& name) const;

    // The zone that a link such as /etc/localtime points at, by the part of its target below
    // a "zoneinfo" directory or below this root: "/usr/share/zoneinfo/Europe/Berlin" and
    // "../usr/share/zoneinfo/Europe/Berlin" both give "Europe/Berlin". Empty when the path is
    // not a link or its target lies outside any zone tree.
    std::string NameOfLink(const std::string& path) const;

private:
    std::string Root;
};
