// getJsonBuff over arbitrary file contents and lengths: the buffer holds the
// file's first `length` bytes (what a read gave) and a NUL at `length`.
#include "middleware.h"

#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    // The first byte asks for a length around the file's own size.
    const int32_t length = static_cast<int32_t>(size - 1) + static_cast<int8_t>(data[0]) % 8;
    const int fd = memfd_create("file-reader", 0);
    if (fd < 0)
        return 0;
    if (write(fd, data + 1, size - 1) != static_cast<ssize_t>(size - 1)) {
        close(fd);
        return 0;
    }
    char *buffer = getJsonBuff(fd, length);
    close(fd);
    if (length <= 0) {
        if (buffer != nullptr)
            abort();
        return 0;
    }
    if (buffer == nullptr)
        return 0;
    const size_t shared = static_cast<size_t>(length) < size - 1 ? static_cast<size_t>(length) : size - 1;
    if (memcmp(buffer, data + 1, shared) != 0 || buffer[length] != '\0')
        abort();
    free(buffer);
    return 0;
}
