#pragma once
// The pictures built into the component as named resources of its module, such as the phases
// of the Moon. The build turns every .bmp and .png file in a resources/ folder of a subsystem
// (src/<subsystem>/resources/) into an entry of the module's table, named by the file name
// without its extension in capitals ("MOON1"). Names are found without regard to case.
#include <cstddef>

#include "platform/WinTypes.h"

// What an HINSTANCE points to. The component has one module; every instance handle finds the
// same resources.
struct ModuleInstance
{};

// The component's own module.
HINSTANCE GetModuleInstance();

struct PictureResource
{
    const char* Name;
    const BYTE* Data; // the whole file, BMP or PNG
    std::size_t Size;
};

// The resource of a name, null when there is none.
const PictureResource* FindPictureResource(const char* name);
// Adds a table of resources after the module's own, for pictures that come from elsewhere
// (a host or a test). The table must live as long as the program.
void AddPictureResources(const PictureResource* table, std::size_t count);
