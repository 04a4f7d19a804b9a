#include "host/HostHelp.h"

#include <cctype>
#include <fstream>
#include <sstream>

#include "host/HostFrameAPI.h"
#include "platform/WindowCalls.h"

namespace {

// A path as the path of a file URL: what is not safe in one is written as %XX.
std::string UrlPath(const std::string& path)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string url;
    for (unsigned char c : path) {
        if (std::isalnum(c) || c == '/' || c == '-' || c == '_' || c == '.' || c == '~') {
            url += char(c);
        } else {
            url += '%';
            url += digits[c >> 4];
            url += digits[c & 15];
        }
    }
    return url;
}

bool PageHasAnchor(const std::string& file, const std::string& anchor)
{
    std::ifstream in(file);
    std::ostringstream page;
    page << in.rdbuf();
    return page.str().find("id=\"" + anchor + "\"") != std::string::npos;
}

} // namespace

std::string HostHelpAnchor(const std::string& topic)
{
    std::string anchor;
    bool gap = false;
    for (unsigned char c : topic) {
        if (std::isalnum(c)) {
            if (gap && !anchor.empty()) {
                anchor += '-';
            }
            anchor += char(std::tolower(c));
            gap = false;
        } else {
            gap = true;
        }
    }
    return anchor;
}

std::string HostHelpAddress(const std::string& file, const std::string& topic)
{
    std::string address = "file://" + UrlPath(file);
    const std::string anchor = HostHelpAnchor(topic);
    if (!anchor.empty() && PageHasAnchor(file, anchor)) {
        address += "#" + anchor;
    }
    return address;
}

void InstallHostHelp()
{
    SetWinHelpHandler([](HWND, const std::string& file, UINT command, const std::string& key) {
        HostFrameAPI* frame = getHostFrameAPI();
        if (command == HELP_QUIT || !frame) {
            return command == HELP_QUIT;
        }
        return frame->Launch(HostHelpAddress(file.empty() ? frame->GetHelpFile() : file, key));
    });
}
