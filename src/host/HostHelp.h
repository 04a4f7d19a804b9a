#pragma once
// The reference host's help: one page, data/orbiscope-help.html, whose sections carry the
// topics of the help keys as anchors. The handler of WinHelpA opens the page at the topic's
// anchor ("Time Lapse" is #time-lapse) with the frame's launcher, which hands it to the
// desktop's opener or, without one, writes the address out; a topic the page has no anchor
// for opens the page at its top.
#include <string>

// The address of the help page `file` for `topic`: a file URL, with the topic's anchor when
// the page holds an element of that id.
std::string HostHelpAddress(const std::string& file, const std::string& topic);
// The anchor of a topic: its letters and digits in lower case, every run of other characters
// one hyphen, none at the ends.
std::string HostHelpAnchor(const std::string& topic);
// Installs the handler of WinHelpA that opens the page through getHostFrameAPI()'s launch.
void InstallHostHelp();
