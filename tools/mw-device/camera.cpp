#include "camera.h"

#include <cstdio>
#include <cstring>

namespace device {

namespace {

template <size_t N>
void put_text(char (&field)[N], const std::string &text)
{
    snprintf(field, N, "%s", text.c_str());
}

// The page's record in a state of the camera's own, written by `write`.
// A page whose state is not one record of type R is left alone.
template <typename R, typename Write>
void rewrite(Page &page, Write write)
{
    State state = snapshot(page);
    if (state.size() != sizeof(R))
        return;
    R record;
    memcpy(&record, state.data(), sizeof(R));
    write(record);
    memcpy(state.data(), &record, sizeof(R));
    publish(page, std::move(state));
}

constexpr const char *kNetmask = "255.0.0.0";
constexpr const char *kGateway = "10.0.0.1";

} // namespace

Identity identity_of(unsigned id)
{
    Identity i;
    i.id = id;
    char text[64];
    // 0x02 in the first octet: a locally administered, unicast address.
    snprintf(text, sizeof text, "02:1c:27:%02x:%02x:%02x", (id >> 16) & 0xff, (id >> 8) & 0xff, id & 0xff);
    i.mac = text;
    snprintf(text, sizeof text, "NV4240B26F%07u", id % 10000000u);
    i.serial = text;
    // Hosts .2 to .251 of each /24 (.1 is the gateway's): 250 a block.
    const unsigned n = id - 1;
    snprintf(text, sizeof text, "10.%u.%u.%u", (n / 64000u) & 0xff, (n / 250u) % 256u, n % 250u + 2u);
    i.ipv4 = text;
    snprintf(text, sizeof text, "2001:db8:4a:10::c:%x", id);
    i.ipv6 = text;
    snprintf(text, sizeof text, "Camera %04u", id);
    i.name = text;
    return i;
}

Identity sample_identity()
{
    Identity i;
    i.id = 1;
    for (const PageKind &kind : page_kinds()) {
        if (strcmp(kind.entry->name, "get_system_information_json") != 0 ||
            kind.sample->size() != sizeof(system_information_record))
            continue;
        system_information_record r;
        memcpy(&r, kind.sample->data(), sizeof r);
        i.mac = r.mac;
        i.serial = r.snCode;
        i.ipv4 = r.ipaddress;
        i.name = r.deviceName;
    }
    for (const PageKind &kind : page_kinds()) {
        if (strcmp(kind.entry->name, "get_network_tcp_json") == 0 && kind.sample->size() == sizeof(network_tcp_record)) {
            network_tcp_record r;
            memcpy(&r, kind.sample->data(), sizeof r);
            i.ipv6 = r.ipv6Ipaddress;
        }
    }
    return i;
}

Camera::Camera(unsigned id, bool derived, std::string stateDir)
    : identity_(derived ? identity_of(id) : sample_identity()), stateDir_(std::move(stateDir))
{
    identity_.id = id;
    const std::vector<PageKind> &kinds = page_kinds();
    count_ = kinds.size();
    pages_.reset(new Page[count_]);
    for (size_t k = 0; k < count_; ++k) {
        pages_[k].entry = kinds[k].entry;
        pages_[k].kind = &kinds[k];
        pages_[k].state = kinds[k].sample;
    }
    if (!derived)
        return;
    const Identity &me = identity_;
    for (size_t k = 0; k < count_; ++k) {
        Page &page = pages_[k];
        const std::string name = page.entry->name;
        if (name == "get_system_information_json") {
            rewrite<system_information_record>(page, [&](system_information_record &r) {
                put_text(r.mac, me.mac);
                put_text(r.snCode, me.serial);
                put_text(r.ipaddress, me.ipv4);
                put_text(r.netmask, kNetmask);
                put_text(r.gateway, kGateway);
                put_text(r.deviceName, me.name);
            });
        } else if (name == "get_network_tcp_json") {
            rewrite<network_tcp_record>(page, [&](network_tcp_record &r) {
                put_text(r.ipv4Ipaddress, me.ipv4);
                put_text(r.ipv4netmask, kNetmask);
                put_text(r.ipv4gateway, kGateway);
                put_text(r.ipv6Ipaddress, me.ipv6);
            });
        } else if (name == "get_network_http_json") {
            rewrite<network_http_record>(page, [&](network_http_record &r) {
                put_text(r.ipv4Ipaddress, me.ipv4);
                put_text(r.ipv6Ipaddress, me.ipv6);
            });
        } else if (name == "get_network_upnp_json") {
            rewrite<network_upnp_record>(page, [&](network_upnp_record &r) { put_text(r.upnpName, me.name); });
        } else if (name == "get_network_bonjour_json") {
            rewrite<network_bonjour_record>(page, [&](network_bonjour_record &r) { put_text(r.name, me.name); });
        } else if (name == "get_network_vpn_json") {
            rewrite<network_vpn_record>(page, [&](network_vpn_record &r) { put_text(r.deviceName, me.name); });
        }
    }
}

Page *Camera::find(const std::string &path)
{
    const int k = page_index(path);
    return k < 0 ? nullptr : &pages_[static_cast<size_t>(k)];
}

} // namespace device
