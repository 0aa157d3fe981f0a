/*
 * The camera's user accounts: who may log in, with which role.
 *
 * An accounts file holds one account a line,
 *
 *     NAME:ROLE:SHA256-HA1:MD5-HA1
 *
 * where ROLE is administrator, operator or viewer and each HA1 is the hex
 * digest of "NAME:REALM:PASSWORD" (REALM is kRealm) under that algorithm, the
 * value HTTP Digest authentication (RFC 7616) checks a response against: the
 * file never holds a password in clear, and both algorithms a challenge may
 * name are ready. Blank lines and lines starting with '#' are comments.
 * `mw-device --add-user FILE NAME ROLE` writes such a line.
 */
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace device {

// The realm every challenge names; the stored digests depend on it.
constexpr const char *kRealm = "mw-device";

enum class Role { administrator, operator_, viewer };

const char *role_name(Role role);
// False for a name that is not one of the three roles.
bool parse_role(const std::string &text, Role *role);

struct Account {
    std::string name;
    Role role = Role::viewer;
    uint8_t sha256[32] = {};
    uint8_t md5[16] = {};
};

// A name fit for an account: 1 to 64 printable ASCII characters without ':',
// '"', '\\' or blanks (it travels quoted in the Authorization field).
bool valid_name(const std::string &name);

// Reads an accounts file. On a malformed line, an unknown role or a name given
// twice, returns false with "FILE:LINE: why" in `error`.
bool load_accounts(const std::string &file, std::vector<Account> *accounts, std::string *error);

// The file's line for an account with this password.
std::string account_line(const std::string &name, Role role, const std::string &password);

// Adds the account to FILE (made when missing, mode 0600) or replaces the line
// of the same name; the other lines stay as they were. The file is replaced
// whole (a temporary file renamed over it). False with a reason on failure.
bool add_account(const std::string &file, const std::string &name, Role role, const std::string &password,
                 std::string *error);

} // namespace device
