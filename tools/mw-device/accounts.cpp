#include "accounts.h"

#include <gnutls/crypto.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace device {

namespace {

const char *const kRoleNames[] = {"administrator", "operator", "viewer"};

std::string hex(const uint8_t *bytes, size_t size)
{
    static const char digits[] = "0123456789abcdef";
    std::string out;
    for (size_t i = 0; i < size; ++i) {
        out += digits[bytes[i] >> 4];
        out += digits[bytes[i] & 15];
    }
    return out;
}

int nibble(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

bool unhex(const std::string &text, uint8_t *out, size_t size)
{
    if (text.size() != 2 * size)
        return false;
    for (size_t i = 0; i < size; ++i) {
        const int high = nibble(text[2 * i]), low = nibble(text[2 * i + 1]);
        if (high < 0 || low < 0)
            return false;
        out[i] = static_cast<uint8_t>(high << 4 | low);
    }
    return true;
}

std::vector<std::string> split(const std::string &line, char mark)
{
    std::vector<std::string> parts(1);
    for (const char c : line) {
        if (c == mark)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

bool comment(const std::string &line) { return line.empty() || line[0] == '#'; }

// The line without the blanks and CR at its end.
std::string trimmed(std::string line)
{
    while (!line.empty() && (line.back() == ' ' || line.back() == '\t' || line.back() == '\r'))
        line.pop_back();
    return line;
}

// One account line; false with the reason.
bool parse_line(const std::string &line, Account *account, std::string *why)
{
    const std::vector<std::string> fields = split(line, ':');
    if (fields.size() != 4) {
        *why = "want NAME:ROLE:SHA256-HA1:MD5-HA1, found " + std::to_string(fields.size()) + " fields";
        return false;
    }
    if (!valid_name(fields[0])) {
        *why = "not an account name: \"" + fields[0] + "\"";
        return false;
    }
    account->name = fields[0];
    if (!parse_role(fields[1], &account->role)) {
        *why = "unknown role \"" + fields[1] + "\" (administrator, operator or viewer)";
        return false;
    }
    if (!unhex(fields[2], account->sha256, sizeof account->sha256)) {
        *why = "the SHA-256 digest is not 64 hex digits";
        return false;
    }
    if (!unhex(fields[3], account->md5, sizeof account->md5)) {
        *why = "the MD5 digest is not 32 hex digits";
        return false;
    }
    return true;
}

std::string digest_hex(gnutls_digest_algorithm_t algorithm, size_t size, const std::string &text)
{
    uint8_t out[32];
    if (gnutls_hash_fast(algorithm, text.data(), text.size(), out) != 0)
        return std::string();
    return hex(out, size);
}

} // namespace

const char *role_name(Role role) { return kRoleNames[static_cast<int>(role)]; }

bool parse_role(const std::string &text, Role *role)
{
    for (int i = 0; i < 3; ++i) {
        if (text == kRoleNames[i]) {
            *role = static_cast<Role>(i);
            return true;
        }
    }
    return false;
}

bool valid_name(const std::string &name)
{
    if (name.empty() || name.size() > 64)
        return false;
    for (const char c : name) {
        if (c <= ' ' || c > '~' || c == ':' || c == '"' || c == '\\')
            return false;
    }
    return true;
}

bool load_accounts(const std::string &file, std::vector<Account> *accounts, std::string *error)
{
    std::ifstream in(file);
    if (!in) {
        *error = file + ": cannot read the accounts file";
        return false;
    }
    accounts->clear();
    std::string line;
    for (unsigned number = 1; std::getline(in, line); ++number) {
        line = trimmed(line);
        if (comment(line))
            continue;
        Account account;
        std::string why;
        if (!parse_line(line, &account, &why)) {
            *error = file + ":" + std::to_string(number) + ": " + why;
            return false;
        }
        for (const Account &earlier : *accounts) {
            if (earlier.name == account.name) {
                *error = file + ":" + std::to_string(number) + ": the account \"" + account.name + "\" again";
                return false;
            }
        }
        accounts->push_back(account);
    }
    return true;
}

std::string account_line(const std::string &name, Role role, const std::string &password)
{
    const std::string text = name + ":" + kRealm + ":" + password;
    return name + ":" + role_name(role) + ":" + digest_hex(GNUTLS_DIG_SHA256, 32, text) + ":" +
           digest_hex(GNUTLS_DIG_MD5, 16, text);
}

bool add_account(const std::string &file, const std::string &name, Role role, const std::string &password,
                 std::string *error)
{
    if (!valid_name(name)) {
        *error = "not an account name: \"" + name + "\" (1 to 64 printable characters, no blanks, ':', '\"' or '\\')";
        return false;
    }
    std::vector<std::string> lines;
    struct stat info {};
    if (stat(file.c_str(), &info) == 0) {
        std::vector<Account> existing;
        if (!load_accounts(file, &existing, error))
            return false;
        std::ifstream in(file);
        for (std::string line; std::getline(in, line);)
            lines.push_back(line);
    }
    const std::string added = account_line(name, role, password);
    bool replaced = false;
    for (std::string &line : lines) {
        const std::string t = trimmed(line);
        if (!comment(t) && t.compare(0, name.size() + 1, name + ":") == 0) {
            line = added;
            replaced = true;
        }
    }
    if (!replaced)
        lines.push_back(added);

    const std::string temporary = file + ".tmp";
    const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (fd < 0) {
        *error = temporary + ": cannot write";
        return false;
    }
    std::string text;
    for (const std::string &line : lines)
        text += line + "\n";
    const bool written = write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()) && fsync(fd) == 0;
    close(fd);
    if (!written || rename(temporary.c_str(), file.c_str()) != 0) {
        unlink(temporary.c_str());
        *error = file + ": cannot write";
        return false;
    }
    return true;
}

} // namespace device
