#include "platform/sdl/X11Display.h"

#include "platform/DebugStream.h"

#include <X11/Xlib.h>

namespace {

int NoteXError(Display*, XErrorEvent* error)
{
    dbstream << "X error " << int(error->error_code) << " of request " << int(error->request_code)
             << " on resource " << error->resourceid << ", passed over" << dbendl;
    return 0;
}

} // namespace

void PrepareX11Display()
{
    XSetErrorHandler(&NoteXError);
    if (Display* display = XOpenDisplay(nullptr)) {
        XInternAtom(display, "_MOTIF_WM_HINTS", False);
        XCloseDisplay(display);
    }
}
