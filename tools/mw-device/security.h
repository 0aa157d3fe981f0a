/*
 * The start-up side of accounts and HTTPS: the accounts file read, the rule
 * that an address other than loopback is served only with accounts, the
 * certificate and key read, and the options and flags libmicrohttpd takes for
 * them. Also the --add-user command.
 */
#pragma once

#include "options.h"

#include <microhttpd.h>

#include <string>
#include <vector>

namespace device {

struct Security {
    std::vector<MHD_OptionItem> options; // ended by MHD_OPTION_END, for MHD_OPTION_ARRAY
    unsigned flags = 0;                  // MHD_USE_TLS with a certificate
    const char *scheme = "http";
    std::string cert, key; // the PEM texts the options point into
};

// Reads what the options name and sets authentication up (after the pages are
// loaded). False with a message (and the exit status) when the simulator
// must not start.
bool prepare_security(const Options &options, Security *security, std::string *error, int *status);

// True for an IPv4 address of the loopback network, 127.0.0.0/8.
bool loopback(const std::string &address);

// mw-device --add-user FILE NAME ROLE: the password from standard input (its
// first line). Returns the exit status.
int add_user_command(int argc, char **argv);

} // namespace device
