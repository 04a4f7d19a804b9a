#include "state/CmdLineStateContainer.h"

#include <algorithm>

std::string RemoveSpaces(const std::string& key)
{
    std::string result = key;
    std::replace(result.begin(), result.end(), ' ', '_');
    return result;
}

CmdLineStateContainer::CmdLineStateContainer(const HostCmdLine& commandLine) : CmdLine(commandLine)
{}

void CmdLineStateContainer::Push()
{
    TextStack.push(CmdLine.GetRawText());
    KeyStack.push(Key);
}

void CmdLineStateContainer::Pop()
{
    // An unmatched EndLevel is a caller's mistake; it leaves the container as it is.
    if (TextStack.empty()) {
        return;
    }
    CmdLine = HostCmdLine(TextStack.top());
    Key = KeyStack.top();
    TextStack.pop();
    KeyStack.pop();
}

void CmdLineStateContainer::CreateLevel()
{
    Push();
    CmdLine = HostCmdLine();
    bWriting = true;
}

void CmdLineStateContainer::MoveToLevel()
{
    Push();
    std::string value;
    CmdLine.GetValue(RemoveSpaces(Key.GetName()), value);
    CmdLine = HostCmdLine(value);
    bWriting = false;
}

void CmdLineStateContainer::GoToParentLevel()
{
    if (!bWriting) {
        Pop();
        return;
    }
    std::string level = CmdLine.GetRawText();
    Pop();
    if (level.empty()) {
        return;
    }
    if (Key.IsEmpty()) {
        CmdLine.AddParam(level);
    } else {
        CmdLine.AddParam(RemoveSpaces(Key.GetName()), "<" + level + ">", false);
    }
}

void CmdLineStateContainer::Write(std::string& value)
{
    CmdLine.AddParam(RemoveSpaces(Key.GetName()), value, true);
}

std::string CmdLineStateContainer::GetValue()
{
    std::string value;
    CmdLine.GetValue(RemoveSpaces(Key.GetName()), value);
    return value;
}
