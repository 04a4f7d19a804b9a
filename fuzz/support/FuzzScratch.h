#pragma once
// The one folder a fuzz target writes its files into: made on first use under $TMPDIR (or
// /tmp) with a name of its own, and removed with everything in it when the process ends
// normally. A run that stops on a finding leaves it behind; scripts/fuzz points TMPDIR at a
// folder of its own and empties that after each target.
#include <string>

class FuzzScratch
{
public:
    // `target` names the folder, as orbiscope-fuzz-<target>-XXXXXX.
    explicit FuzzScratch(const std::string& target);
    ~FuzzScratch();
    FuzzScratch(const FuzzScratch&) = delete;
    FuzzScratch& operator=(const FuzzScratch&) = delete;

    // False when the folder could not be made; the paths then lead nowhere writable.
    bool IsReady() const { return !Folder.empty(); }
    // The file `name` in the folder.
    std::string Path(const std::string& name) const;
    // Writes the bytes as the file `name`; false when it cannot.
    bool Write(const std::string& name, const std::string& bytes) const;
    // Removes every file in the folder, so that what one input wrote is gone before the next.
    void Empty() const;

private:
    std::string Folder;
};
