#include "auth.h"

#include "http.h"
#include "lockout.h"
#include "pages.h"
#include "replay.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/random.h>

#include <algorithm>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <set>

namespace device {

namespace {

// The pages an operator may read but not change: who has an account and what
// it may do, how the camera is reached on the network, what reaches it from
// outside, and what guards it. Changing one of them can lock everybody out or
// open the camera to others, so they are the administrator's.
const std::vector<Reserved> kAdministratorOnly = {
    {"get_system_user_json", "the accounts, their passwords and permissions"},
    {"get_system_user_anonymous_json", "whether visitors may watch without an account"},
    {"get_system_authority_json", "the authority of the logged-in account"},
    {"get_system_sqa_info_json", "the security questions that recover the administrator's password"},
    {"get_system_access_list_json", "the IP access list: which addresses may connect"},
    {"get_system_ssh_json", "the SSH service: a shell from the network"},
    {"get_network_tcp_json", "the camera's IPv4 and IPv6 addresses, gateway and DNS"},
    {"get_network_vlan_json", "the VLAN tag and the address inside it"},
    {"get_network_pppoe_json", "the PPPoE account and the address of the link"},
    {"get_network_http_json", "the web server's ports and its certificate"},
    {"get_network_8021x_json", "the 802.1X credentials that admit the camera to the network"},
    {"get_network_ddns_json", "the public host name and ports published by dynamic DNS"},
    {"get_network_upnp_json", "the ports the router opens to the outside"},
    {"get_network_platform_json", "registration with a remote video platform, with its password"},
    {"get_network_vpn_json", "the VPN tunnel into other networks"},
    {"get_network_snmp_json", "SNMP communities and users: management from the network"},
    {"get_network_more_json", "ONVIF and the push service: control and reports from outside"},
};

AuthSettings settings;
std::set<std::string> reservedPaths; // the administrator-only pages' paths
Lockout lockout;
RecentResponses recent;
uint8_t digestRandom[32];
char opaque[33];

// Set while a Digest check runs when the library reports that the nonce's
// slot in its table was taken by a newer nonce. The check then fails like a
// wrong password, but the client did nothing wrong: its nonce is stale.
thread_local bool nonceLetGo = false;
const char kLetGo[] = "Stale nonce received.";

void log_line(void *, const char *format, va_list list)
{
    if (strncmp(format, kLetGo, sizeof kLetGo - 1) == 0) {
        nonceLetGo = true;
        return;
    }
    vfprintf(stderr, format, list);
}

uint64_t seconds_now()
{
    return static_cast<uint64_t>(
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now().time_since_epoch())
            .count());
}

MHD_DigestAuthAlgorithm algorithm() { return settings.md5 ? MHD_DIGEST_ALG_MD5 : MHD_DIGEST_ALG_SHA256; }

// What asks for a login: the API, and a fleet's list of its cameras (their
// MAC addresses and serial numbers); the browser page's files do not.
bool guarded(const char *url)
{
    return (strncmp(url, "/api", 4) == 0 && (url[4] == '\0' || url[4] == '/')) || strcmp(url, "/fleet") == 0;
}

std::string client_address(struct MHD_Connection *connection)
{
    const union MHD_ConnectionInfo *info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    if (info == nullptr || info->client_addr == nullptr)
        return std::string();
    char text[INET6_ADDRSTRLEN] = "";
    const struct sockaddr *a = info->client_addr;
    if (a->sa_family == AF_INET)
        inet_ntop(AF_INET, &reinterpret_cast<const struct sockaddr_in *>(a)->sin_addr, text, sizeof text);
    else if (a->sa_family == AF_INET6)
        inet_ntop(AF_INET6, &reinterpret_cast<const struct sockaddr_in6 *>(a)->sin6_addr, text, sizeof text);
    return text;
}

const Account *find_account(const char *name)
{
    for (const Account &a : settings.accounts) {
        if (a.name == name)
            return &a;
    }
    return nullptr;
}

// 401 with a challenge; `stale` when only the nonce was out of date.
MHD_Result challenge(struct MHD_Connection *connection, bool stale, const char *why)
{
    struct MHD_Response *response = make_response(connection, error(MHD_HTTP_UNAUTHORIZED, why));
    if (response == nullptr)
        return MHD_NO;
    const MHD_Result result =
        MHD_queue_auth_fail_response2(connection, kRealm, opaque, response, stale ? MHD_YES : MHD_NO, algorithm());
    MHD_destroy_response(response);
    return result;
}

MHD_Result too_many(struct MHD_Connection *connection, unsigned wait)
{
    const std::string why = "too many failed logins from this address: try again in " + std::to_string(wait) + " s";
    struct MHD_Response *response = make_response(connection, error(MHD_HTTP_TOO_MANY_REQUESTS, why.c_str()));
    if (response == nullptr)
        return MHD_NO;
    MHD_add_response_header(response, MHD_HTTP_HEADER_RETRY_AFTER, std::to_string(wait).c_str());
    const MHD_Result result = MHD_queue_response(connection, MHD_HTTP_TOO_MANY_REQUESTS, response);
    MHD_destroy_response(response);
    return result;
}

// 401 after a failed login, or 429 when this failure locks the address out.
MHD_Result refuse(struct MHD_Connection *connection, const std::string &address, uint64_t now)
{
    if (lockout.failed(address, now))
        return too_many(connection, settings.lockoutSeconds);
    return challenge(connection, false, "wrong name or password");
}

} // namespace

bool set_auth(const AuthSettings &s, std::string *error)
{
    settings = s;
    lockout.set_seconds(s.lockoutSeconds);
    reservedPaths.clear();
    for (const Reserved &r : kAdministratorOnly) {
        const PageKind *found = nullptr;
        for (const PageKind &page : page_kinds()) {
            if (strcmp(page.entry->name, r.name) == 0)
                found = &page;
        }
        if (found == nullptr || found->entry->page == nullptr || found->entry->page->set == nullptr) {
            *error = std::string("the administrator-only page ") + r.name + " is not a settable page";
            return false;
        }
        reservedPaths.insert(found->path);
    }
    return true;
}

bool auth_on() { return !settings.accounts.empty(); }

bool permits(Role role, bool writing, bool administratorOnly)
{
    switch (role) {
    case Role::administrator:
        return true;
    case Role::operator_:
        return !writing || !administratorOnly;
    case Role::viewer:
        return !writing;
    }
    return false;
}

const std::vector<Reserved> &administrator_only() { return kAdministratorOnly; }

std::vector<MHD_OptionItem> digest_options(unsigned cameras)
{
    std::vector<MHD_OptionItem> items;
    if (auth_on()) {
        // The secret the nonces are made from, new at every start: a restart
        // makes every earlier nonce stale.
        if (getrandom(digestRandom, sizeof digestRandom, 0) != static_cast<ssize_t>(sizeof digestRandom))
            return {{MHD_OPTION_END, 0, nullptr}};
        static const char digits[] = "0123456789abcdef";
        for (size_t i = 0; i < 16; ++i) {
            opaque[2 * i] = digits[digestRandom[i + 16] >> 4];
            opaque[2 * i + 1] = digits[digestRandom[i + 16] & 15];
        }
        items.push_back({MHD_OPTION_EXTERNAL_LOGGER, reinterpret_cast<intptr_t>(log_line), nullptr});
        items.push_back({MHD_OPTION_DIGEST_AUTH_RANDOM, sizeof digestRandom, digestRandom});
        // Each nonce handed out takes a slot that remembers the counts used
        // with it (a replayed count is refused); a nonce whose slot was taken
        // by a newer one is refused too, so the table is sized for many
        // clients at once (about 150 bytes a slot, 2.4 MB). The cameras of a
        // fleet have a table each and share those slots, down to 1024 each.
        const unsigned slots = std::max(1024u, 16384u / std::max(cameras, 1u));
        items.push_back({MHD_OPTION_NONCE_NC_SIZE, static_cast<intptr_t>(slots), nullptr});
    }
    items.push_back({MHD_OPTION_END, 0, nullptr});
    return items;
}

bool admit(struct MHD_Connection *connection, const char *method, const char *url, MHD_Result *result)
{
    if (!auth_on() || strcmp(method, MHD_HTTP_METHOD_OPTIONS) == 0 || !guarded(url))
        return true;
    const std::string address = client_address(connection);
    const uint64_t now = seconds_now();
    if (const unsigned wait = lockout.locked(address, now)) {
        *result = too_many(connection, wait);
        return false;
    }
    std::string authorization;
    if (!header_field(connection, MHD_HTTP_HEADER_AUTHORIZATION, &authorization) ||
        strncasecmp(authorization.c_str(), "Digest ", 7) != 0) {
        *result = challenge(connection, false, "log in to reach the camera's pages");
        return false;
    }
    char *name = MHD_digest_auth_get_username(connection);
    if (name == nullptr) {
        *result = refuse(connection, address, now);
        return false;
    }
    // An unknown name is checked against a digest no password has, so that
    // it is answered as a wrong password is, stale nonces included.
    static const Account nobody;
    const Account *found = find_account(name);
    const Account &account = found != nullptr ? *found : nobody;
    nonceLetGo = false;
    const int checked = MHD_digest_auth_check_digest2(
        connection, kRealm, name, settings.md5 ? account.md5 : account.sha256,
        settings.md5 ? sizeof account.md5 : sizeof account.sha256, settings.nonceSeconds, algorithm());
    MHD_free(name);
    if (checked == MHD_INVALID_NONCE || (checked == MHD_NO && nonceLetGo)) {
        *result = challenge(connection, true, "the login is out of date");
        return false;
    }
    std::string response;
    if (checked != MHD_YES || found == nullptr || !digest_response(authorization, &response) || !recent.first_use(response, now)) {
        *result = refuse(connection, address, now);
        return false;
    }
    lockout.succeeded(address);

    const bool writing = strcmp(method, MHD_HTTP_METHOD_GET) != 0 && strcmp(method, MHD_HTTP_METHOD_HEAD) != 0;
    if (permits(account.role, writing, reservedPaths.count(url) != 0))
        return true;
    const std::string why = account.role == Role::viewer
                                ? "the viewer role may only read"
                                : std::string("the ") + role_name(account.role) + " role may not change this page";
    *result = send(connection, error(MHD_HTTP_FORBIDDEN, why.c_str()));
    return false;
}

} // namespace device
