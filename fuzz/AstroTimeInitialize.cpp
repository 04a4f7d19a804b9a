// Catalogue dates from any text: reading, converting, stepping and printing must never fault.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "catalogues/StringParser.h"
#include "time/AstroTime.h"
#include "time/TimeStep.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    StringParser parser(text, " ", true);
    AstroTime time;
    time.Initialize(parser, 1);
    time.SetMode(size % 2 == 0 ? AstroTime::Clock12 : AstroTime::Clock24);

    std::string forms = time.GetDescription1() + time.GetDescription3() + time.GetTimeString();
    double mjd = time.GetMJD();
    AstroTime back(mjd, true);

    // The rest of the line, if any, as the counts of a step.
    TimeStep step;
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        LorvString* token = parser.GetNextToken(nullptr);
        if (token == nullptr) {
            break;
        }
        step.SetStep(static_cast<TimeStep::TIME_UNITS>(unit), std::atoi(token->c_str()));
    }
    back += step;
    back -= step;
    forms += back.GetDescription2();
    return forms.empty() ? 1 : 0;
}
