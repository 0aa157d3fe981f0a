/*
 * zk_platform.h - the few functions the library takes from the camera's
 * platform library. On a camera the firmware defines them; on a host the
 * stand-in library built from zk_platform_stub.c does.
 */
#ifndef ZK_PLATFORM_H
#define ZK_PLATFORM_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* malloc that records the allocating source file and line for the platform's
   own bookkeeping; the memory is released with free(). */
void *__zk_malloc(size_t size, const char *sourceFile, int32_t line);

/* The key text of user-permission module 0..3 (constant, owned by the
   platform library). */
const char *get_module_permission_string(int32_t module);

/* The key text of push module `module` (constant, owned by the platform
   library). */
const char *get_new_module_push_name(int32_t module);

#ifdef __cplusplus
}
#endif

#endif /* ZK_PLATFORM_H */
