#include "security.h"

#include "accounts.h"
#include "auth.h"
#include "http.h"

#include <arpa/inet.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

namespace device {

namespace {

bool read_file(const std::string &file, std::string *out)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return false;
    std::stringstream text;
    text << in.rdbuf();
    *out = text.str();
    return !out->empty();
}

} // namespace

bool loopback(const std::string &address)
{
    struct in_addr a {};
    return inet_pton(AF_INET, address.c_str(), &a) == 1 && (ntohl(a.s_addr) >> 24) == 127;
}

bool prepare_security(const Options &options, Security *security, std::string *error, int *status)
{
    *status = 2;
    AuthSettings auth;
    auth.md5 = options.digestMd5;
    auth.lockoutSeconds = options.lockoutSeconds;
    if (options.usersFile.empty()) {
        if (!loopback(options.listen)) {
            *error = "--listen " + options.listen +
                     " without --users would let anyone on that network change every page: "
                     "give an accounts file (made with --add-user)";
            return false;
        }
        fprintf(stderr, "mw-device: no --users: authentication is off (loopback only)\n");
    } else {
        if (!load_accounts(options.usersFile, &auth.accounts, error))
            return false;
        if (auth.accounts.empty()) {
            *error = options.usersFile + ": no accounts";
            return false;
        }
    }
    if (!set_auth(auth, error)) {
        *status = 1;
        return false;
    }
    set_cors_credentials(auth_on());
    security->options = digest_options(options.cameras);
    if (!options.tlsCert.empty()) {
        if (!read_file(options.tlsCert, &security->cert) || !read_file(options.tlsKey, &security->key)) {
            *error = "cannot read " + options.tlsCert + " or " + options.tlsKey;
            *status = 1;
            return false;
        }
        security->flags |= MHD_USE_TLS;
        security->scheme = "https";
        security->options.insert(security->options.end() - 1,
                                 {{MHD_OPTION_HTTPS_MEM_CERT, 0, const_cast<char *>(security->cert.c_str())},
                                  {MHD_OPTION_HTTPS_MEM_KEY, 0, const_cast<char *>(security->key.c_str())}});
    }
    return true;
}

int add_user_command(int argc, char **argv)
{
    if (argc != 5) {
        fprintf(stderr, "mw-device: --add-user wants FILE NAME ROLE, the password on standard input\n");
        return 2;
    }
    Role role;
    if (!parse_role(argv[4], &role)) {
        fprintf(stderr, "mw-device: unknown role \"%s\" (administrator, operator or viewer)\n", argv[4]);
        return 2;
    }
    std::string password;
    if (!std::getline(std::cin, password) && password.empty()) {
        fprintf(stderr, "mw-device: no password on standard input\n");
        return 2;
    }
    if (!password.empty() && password.back() == '\r')
        password.pop_back();
    if (password.empty()) {
        fprintf(stderr, "mw-device: an empty password\n");
        return 2;
    }
    std::string why;
    if (!add_account(argv[2], argv[3], role, password, &why)) {
        fprintf(stderr, "mw-device: %s\n", why.c_str());
        return 1;
    }
    return 0;
}

} // namespace device
