#pragma once
// State in a command string: each level is one parameter whose value is the level's own
// parameter text in angle brackets, so levels nest by inclusion:
//   Center=<RA=10.5 Dec=-20>
// Blanks in keys become underscores in both directions ("Orientation Type" is
// Orientation_Type). A level into which nothing was written leaves no parameter at all.
#include <stack>
#include <string>

#include "host/HostCmdLine.h"
#include "state/StateContainer.h"

class CmdLineStateContainer : public StateContainer
{
public:
    CmdLineStateContainer() = default;
    explicit CmdLineStateContainer(const HostCmdLine& commandLine);

    void Write(std::string& value) override;
    std::string GetValue() override;
    void CreateLevel() override;
    void GoToParentLevel() override;
    void MoveToLevel() override;

    // The parameter text of the current level; at the end of a chain, the whole state.
    const HostCmdLine& GetCmdLine() const { return CmdLine; }

private:
    void Push();
    void Pop();

    HostCmdLine CmdLine;
    std::stack<AstroKey> KeyStack;
    std::stack<std::string> TextStack;
    bool bWriting = false;
};

// A copy of `key` with every blank made an underscore.
std::string RemoveSpaces(const std::string& key);
