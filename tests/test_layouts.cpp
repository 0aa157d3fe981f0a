// Record layouts that the documents depend on, pinned byte for byte so that
// the host build and the 64-bit Arm build agree with the firmware that fills
// the records. The numbers are worked out from the declarations by hand.
#include "middleware.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace {

struct Layout {
    const char *member;
    size_t offset;
    size_t expected;
};

void expect_offsets(const char *record, std::initializer_list<Layout> members)
{
    for (const Layout &m : members)
        EXPECT_EQ(m.offset, m.expected) << record << "." << m.member;
}

void expect_layout(const char *record, size_t size, size_t expected_size, std::initializer_list<Layout> members)
{
    EXPECT_EQ(size, expected_size) << "sizeof " << record;
    expect_offsets(record, members);
}

#define AT(type, member, expected) Layout{#member, offsetof(type, member), expected}

TEST(Layouts, PackedSnapshotRecordHasNoPadding)
{
    // Every member follows the previous one directly: three targets of
    // 1 + 128 + 64 + 64 bytes, seven schedule texts of 256.
    EXPECT_EQ(sizeof(camera_snapshot_notify_entry), 257u);
    expect_layout("camera_snapshot_settings_record", sizeof(camera_snapshot_settings_record), 2638,
                  {AT(camera_snapshot_settings_record, intervalValue, 1),
                   AT(camera_snapshot_settings_record, intervalUnit, 5),
                   AT(camera_snapshot_settings_record, storageBaseFilename, 8),
                   AT(camera_snapshot_settings_record, uploadViaHttp, 72),
                   AT(camera_snapshot_settings_record, targets, 73),
                   AT(camera_snapshot_settings_record, uploadViaFtp, 844),
                   AT(camera_snapshot_settings_record, schedule, 846)});
}

TEST(Layouts, RadarLaneListRunsIntoTheMembersAfterIt)
{
    // The lane list reads on past the four lane words into the trigger line
    // and the first bytes of the trigger distance: they must follow directly.
    expect_offsets("lpr_radar_config_record",
                  {AT(lpr_radar_config_record, lanesNum, 100),
                   AT(lpr_radar_config_record, speedUnit, 168),
                   AT(lpr_radar_config_record, laneRegion, 172),
                   AT(lpr_radar_config_record, triggerLine, 188),
                   AT(lpr_radar_config_record, triggerDistance, 192),
                   AT(lpr_radar_config_record, showLicensePlateEnable, 224)});
}

TEST(Layouts, SixtyFourBitDurationIsEightByteAligned)
{
    expect_layout("network_vpn_record", sizeof(network_vpn_record), 352,
                  {AT(network_vpn_record, mode, 1),
                   AT(network_vpn_record, port, 68),
                   AT(network_vpn_record, connected, 200),
                   AT(network_vpn_record, remoteIp, 265),
                   AT(network_vpn_record, duration, 336),
                   AT(network_vpn_record, errorCode, 344)});
}

TEST(Layouts, FloatingPointRecords)
{
    expect_layout("ptz_status_record", sizeof(ptz_status_record), 16,
                  {AT(ptz_status_record, heater, 8), AT(ptz_status_record, fan, 9)});
    expect_layout("trigger_line", sizeof(trigger_line), 20,
                  {AT(trigger_line, startX, 4), AT(trigger_line, endY, 16)});
    expect_layout("ptz_preset_entry", sizeof(ptz_preset_entry), 104,
                  {AT(ptz_preset_entry, secondCoordinate, 8), AT(ptz_preset_entry, leadingNumber, 16),
                   AT(ptz_preset_entry, id, 24), AT(ptz_preset_entry, name, 32)});
}

TEST(Layouts, DdnsBlockMatchesThePageRecordFromItsEnableByte)
{
    EXPECT_EQ(offsetof(network_ddns_record, enable), 4u);
    EXPECT_EQ(sizeof(network_ddns_record), sizeof(network_ddns_settings) + 4);
    EXPECT_EQ(offsetof(network_ddns_record, httpPort) - 4, offsetof(network_ddns_settings, httpPort));
    EXPECT_EQ(offsetof(network_ddns_record, status) - 4, offsetof(network_ddns_settings, status));
}

} // namespace
