// The object information dialog's magnitude: one decimal, and a dash for objects without a
// known magnitude (99 or more, as comets and some Messier objects give). What the dialog shows
// of a body, and its article button, are driven from the map in AstroNoxWindowCommandsTest.
#include <gtest/gtest.h>

#include <limits>

#include "shell/ObjectInfoDialog.h"

TEST(ObjectInfoDialog, AMagnitudeOf99OrMoreOrNoneShowsADash)
{
    const std::pair<double, const char*> cases[] = {
        {99.0, "-"},     {99.99, "-"},    {std::numeric_limits<double>::quiet_NaN(), "-"},
        {98.94, "98.9"}, {-1.46, "-1.5"}, {4.0, "4.0"}};
    for (const auto& [magnitude, shown] : cases) {
        EXPECT_EQ(ObjectInfoDialog::FormatMagnitude(magnitude), shown) << magnitude;
    }
}
