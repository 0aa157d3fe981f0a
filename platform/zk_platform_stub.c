/*
 * A host stand-in for the camera's platform library, for the tests, the
 * command-line tool and the benchmarks. On a camera the firmware's own
 * library provides these functions and this one is not installed.
 */
#include "zk_platform.h"

#include <stdlib.h>

#define ZK_EXPORT __attribute__((visibility("default")))

ZK_EXPORT void *__zk_malloc(size_t size, const char *sourceFile, int32_t line)
{
    (void)sourceFile;
    (void)line;
    return malloc(size);
}

static const char *const permission_names[] = {
    "liveViewPermission",
    "playbackPermission",
    "settingsPermission",
    "ptzControlPermission",
};

ZK_EXPORT const char *get_module_permission_string(int32_t module)
{
    if (module < 0 || module >= (int32_t)(sizeof permission_names / sizeof permission_names[0]))
        return NULL;
    return permission_names[module];
}

ZK_EXPORT const char *get_new_module_push_name(int32_t module)
{
    return module == 0 ? "alarmPush" : NULL;
}
