#include "host/HostCmdLine.h"

#include "catalogues/LorvString.h"

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Reads a value that starts at `pos`; leaves `pos` behind it.
std::string ReadValue(const std::string& text, std::size_t& pos)
{
    std::string value;
    if (pos < text.size() && text[pos] == '<') {
        // A nested level: up to the matching bracket, stepping over quoted texts.
        int depth = 0;
        std::size_t start = pos;
        bool quoted = false;
        for (; pos < text.size(); ++pos) {
            char c = text[pos];
            if (quoted) {
                if (c == '\\' && pos + 1 < text.size()) {
                    ++pos;
                } else if (c == '"') {
                    quoted = false;
                }
            } else if (c == '"') {
                quoted = true;
            } else if (c == '<') {
                ++depth;
            } else if (c == '>' && --depth == 0) {
                ++pos;
                return text.substr(start + 1, pos - start - 2);
            }
        }
        // Unbalanced: the rest of the text is the level.
        return text.substr(start + 1);
    }
    if (pos < text.size() && text[pos] == '"') {
        for (++pos; pos < text.size(); ++pos) {
            char c = text[pos];
            if (c == '\\' && pos + 1 < text.size()) {
                value += text[++pos];
            } else if (c == '"') {
                ++pos;
                break;
            } else {
                value += c;
            }
        }
        return value;
    }
    std::size_t start = pos;
    while (pos < text.size() && !IsBlank(text[pos])) {
        ++pos;
    }
    return text.substr(start, pos - start);
}

bool NeedsQuotes(const std::string& value)
{
    if (value.empty()) {
        return true;
    }
    for (char c : value) {
        if (IsBlank(c) || c == '<' || c == '>' || c == '"' || c == '\\') {
            return true;
        }
    }
    return false;
}

std::string Quote(const std::string& value)
{
    std::string quoted = "\"";
    for (char c : value) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "\"";
}

} // namespace

HostCmdLine::HostCmdLine(const std::string& text) : Text(text)
{}

std::vector<HostCmdLine::Parameter> HostCmdLine::GetParameters() const
{
    std::vector<Parameter> parameters;
    std::size_t pos = 0;
    while (pos < Text.size()) {
        while (pos < Text.size() && IsBlank(Text[pos])) {
            ++pos;
        }
        std::size_t start = pos;
        while (pos < Text.size() && !IsBlank(Text[pos]) && Text[pos] != '=') {
            if (Text[pos] == '"' || Text[pos] == '<') {
                // A stray value without a key: skip it whole.
                ReadValue(Text, pos);
                start = pos;
                continue;
            }
            ++pos;
        }
        if (pos < Text.size() && Text[pos] == '=' && pos > start) {
            std::string key = Text.substr(start, pos - start);
            ++pos;
            parameters.push_back({key, ReadValue(Text, pos)});
        } else if (pos < Text.size() && Text[pos] == '=') {
            ++pos; // "=" with no key: its value is skipped
            ReadValue(Text, pos);
        }
    }
    return parameters;
}

bool HostCmdLine::GetValue(const std::string& key, std::string& value) const
{
    value.clear();
    for (Parameter& parameter : GetParameters()) {
        if (EqualNoCase(parameter.Key, key)) {
            value = std::move(parameter.Value);
            return true;
        }
    }
    return false;
}

void HostCmdLine::AddParam(const std::string& key, const std::string& value, bool quote)
{
    std::string parameter = key + "=" + ((quote && NeedsQuotes(value)) ? Quote(value) : value);
    AddParam(parameter);
}

void HostCmdLine::AddParam(const std::string& parameters)
{
    if (parameters.empty()) {
        return;
    }
    if (!Text.empty() && !IsBlank(Text.back())) {
        Text += ' ';
    }
    Text += parameters;
}
