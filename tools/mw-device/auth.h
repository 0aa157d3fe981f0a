/*
 * Who may do what. With accounts (--users), every request under /api must
 * carry HTTP Digest credentials (RFC 7616) that libmicrohttpd checks against
 * the stored digests, and the account's role must allow the request:
 *
 *   administrator  everything;
 *   operator       reads everything, changes every page but the
 *                  administrator-only ones (kAdministratorOnly in auth.cpp);
 *   viewer         reads only.
 *
 * Answers: 401 with a challenge for no or wrong credentials (stale=true for
 * an expired nonce, so that the client retries without asking its user);
 * 403 {"error": ...} naming the role when the role does not allow the
 * request; 429 with Retry-After to an address with 5 failed logins within the
 * lockout time, for that long. Preflights (OPTIONS) and the browser page's
 * static files need no credentials. Without accounts every request passes.
 *
 * The settings are process-wide: one accounts file for the whole simulator.
 */
#pragma once

#include "accounts.h"

#include <microhttpd.h>

#include <string>
#include <vector>

namespace device {

struct AuthSettings {
    std::vector<Account> accounts; // none: authentication off
    bool md5 = false;              // challenges name MD5 instead of SHA-256
    unsigned lockoutSeconds = 60;  // the window of failures and the length of a lockout
    unsigned nonceSeconds = 300;   // how long a challenge's nonce is good for
};

// Takes the settings (after the pages are loaded: the administrator-only
// pages are looked up among them). False with a reason when the table of
// administrator-only pages names a page that is missing or not settable.
bool set_auth(const AuthSettings &settings, std::string *error);
bool auth_on();

// The role's right to a request: `writing` for anything but GET and HEAD,
// `administratorOnly` for a page only an administrator may change.
bool permits(Role role, bool writing, bool administratorOnly);

// The pages only an administrator may change, by catalog name, with why.
struct Reserved {
    const char *name;
    const char *why;
};
const std::vector<Reserved> &administrator_only();

// libmicrohttpd's options for Digest authentication (the nonces' random
// secret, the size of the table that refuses a replayed nonce count), ended
// by MHD_OPTION_END, for each of `cameras` servers. Empty but for the end
// when authentication is off.
std::vector<MHD_OptionItem> digest_options(unsigned cameras);

// At the top of a request's answer: true when the request may go on; else a
// refusal has been queued and `result` holds what the access handler returns.
bool admit(struct MHD_Connection *connection, const char *method, const char *url, MHD_Result *result);

} // namespace device
