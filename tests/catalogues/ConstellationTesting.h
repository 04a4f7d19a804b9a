#pragma once
// What the constellation tests share: a scratch directory whose profile names the four
// constellation files in it, the shared table of names emptied before and after each test (so
// that no test sees another's names), and small text files opened for the readers.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "StarIndexTesting.h"
#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/TextFile.h"
#include "host/HostProf.h"

// Five constellations of the real table, in its order, with invented figures and boundaries
// where a test needs them.
inline const std::string kFiveNames = "Andromeda, And\n"
                                      "Orion, Ori\n"
                                      "Serpens, Ser\n"
                                      "Ophiuchus, Oph\n"
                                      "Ursa Minor, UMi\n";

class ConstellationFilesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ConstellationCatalogue::FlushNameInfo();
        pDir = std::make_unique<ScratchDirectory>();
        pDir->WriteText("orbiscope.ini", "[Orbiscope]\n"
                                         "ConstellationNameFile = " +
                                             pDir->File("names.txt") +
                                             "\n"
                                             "ConstNodeFile = " +
                                             pDir->File("figures.txt") +
                                             "\n"
                                             "ConstCenterFile = " +
                                             pDir->File("centres.txt") +
                                             "\n"
                                             "ConstellationBoundaryFile = " +
                                             pDir->File("bounds.txt") + "\n");
        HostProfile().Reload();
    }
    void TearDown() override
    {
        ConstellationCatalogue::FlushNameInfo();
        pDir.reset();
        HostProfile().Reload();
    }

    // Writes the file and opens it for one of the readers.
    std::unique_ptr<TextFile> Open(const std::string& name, const std::string& text)
    {
        pDir->WriteText(name, text);
        auto file = std::make_unique<TextFile>();
        EXPECT_TRUE(file->OpenForReading(pDir->File(name).c_str()));
        return file;
    }

    // A catalogue whose constellations are those of `names`, read as the table of names.
    std::unique_ptr<ConstellationCatalogue> Catalogue(const std::string& names = kFiveNames)
    {
        ConstellationCatalogue::FlushNameInfo();
        ConstellationCatalogue::LoadNameInfo(*Open("names.txt", names));
        auto catalogue = std::make_unique<ConstellationCatalogue>();
        catalogue->LoadConstellations();
        return catalogue;
    }

    // The files the profile names: "names.txt", "figures.txt", "centres.txt", "bounds.txt".
    void WriteFile(const std::string& name, const std::string& text) const
    {
        pDir->WriteText(name, text);
    }

    std::unique_ptr<ScratchDirectory> pDir;
};
