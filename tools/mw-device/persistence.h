/*
 * The pages' saved documents: with --state DIR an accepted set saves the
 * page's rendered document as DIR/<name>.json before it is answered, and the
 * saved documents are applied again at start.
 */
#pragma once

#include "pages.h"

#include <string>

namespace device {

// Where documents are saved; empty (the default) saves nothing.
void set_state_dir(const std::string &dir);
bool saving();

// Writes the page's document where a crash cannot leave it half written: a
// temporary file, flushed, renamed over the old one, the folder flushed. On
// failure the temporary file is removed and the saved document is as before.
bool save(const Page &page, const std::string &document);

// Applies the saved documents through the set functions, without their
// read-only members. A document that no longer applies is reported on stderr
// and its page keeps the sample.
void restore();

} // namespace device
