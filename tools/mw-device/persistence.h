/*
 * The pages' saved documents: with --state DIR an accepted set saves the
 * page's rendered document as <camera's folder>/<name>.json before it is
 * answered, and the saved documents are applied again at start. The one
 * camera of a plain run saves in DIR itself, a fleet's camera k in
 * DIR/camera-<k> (camera_state_dir).
 */
#pragma once

#include "camera.h"
#include "pages.h"

#include <string>

namespace device {

// The folder of camera `id` under DIR: "DIR/camera-0042"; empty for an
// empty DIR.
std::string camera_state_dir(const std::string &dir, unsigned id);

// Makes the camera's folder unless it is there; false with a reason when
// that fails.
bool prepare_state_dir(const Camera &camera, std::string *why);
bool saving(const Camera &camera);

// Writes the page's document where a crash cannot leave it half written: a
// temporary file, flushed, renamed over the old one, the folder flushed. On
// failure the temporary file is removed and the saved document is as before.
bool save(const Camera &camera, const Page &page, const std::string &document);

// Applies the saved documents through the set functions, without their
// read-only members. A document that no longer applies is reported on stderr
// and its page keeps the sample. A page whose saved document changes it gets
// a state of its own; the others go on sharing the sample.
void restore(Camera &camera);

} // namespace device
