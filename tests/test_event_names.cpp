// The event-name tables at their bounds and in their odd spellings.
#include "support.h"

#include <cstring>

namespace {

struct NameCase {
    int32_t index;
    const char *name; // nullptr: no such event type
};

TEST(EventNames, AlarmTable)
{
    const NameCase cases[] = {
        {0, "motion"},           {1, "networkLost"},       {8, "irRect"},
        {12, "vcaAdvancedMotion"}, {13, "vcaLinecrossing"}, {20, "vcaLinecrossing2"},
        {22, "vcaLinecrossing4"}, {23, "objectLeftRemove"}, {31, "motionFifth"},
        {39, "regionalPeople1"}, {41, "lprattr"},          {42, "lprviolation"},
        {44, "douput"},          {45, "douputExtra"},      {46, "nouser2"},
        {47, "nouser3"},         {48, nullptr},            {1000, nullptr},
        {-1, nullptr},           {INT32_MIN, nullptr},
    };
    for (const NameCase &c : cases) {
        const char *got = getAlarmEventTypeString(c.index);
        if (c.name == nullptr)
            EXPECT_EQ(got, nullptr) << "index " << c.index;
        else
            EXPECT_STREQ(got, c.name) << "index " << c.index;
    }
}

TEST(EventNames, VcaTable)
{
    const NameCase cases[] = {
        {0, "vcaIntrusionEnter"}, {3, "tamperDefocus"},    {4, "lineCrossing"},
        {8, "objectLeftRemoved"}, {9, "peopleCountRgn"},   {10, "vehicleCountLine"},
        {11, nullptr},            {-1, nullptr},
    };
    for (const NameCase &c : cases) {
        const char *got = getVcaEventTypeString(c.index);
        if (c.name == nullptr)
            EXPECT_EQ(got, nullptr) << "index " << c.index;
        else
            EXPECT_STREQ(got, c.name) << "index " << c.index;
    }
}

TEST(EventNames, SharedNamesAgree)
{
    const int32_t alarm[] = {9, 10, 12};
    for (int i = 0; i < 3; ++i)
        EXPECT_STREQ(getAlarmEventTypeString(alarm[i]), getVcaEventTypeString(i));
}

TEST(EventNames, EveryAlarmNameIsDistinct)
{
    for (int32_t i = 0; i <= 47; ++i)
        for (int32_t j = i + 1; j <= 47; ++j)
            EXPECT_STRNE(getAlarmEventTypeString(i), getAlarmEventTypeString(j)) << i << " and " << j;
}

} // namespace
