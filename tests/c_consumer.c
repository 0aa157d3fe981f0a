/* The public header as a C11 program sees it: this file is compiled as C11
   with pedantic errors and calls the library like the camera's web server. */
#include "middleware.h"

#include <stdio.h>
#include <string.h>

int c_consumer_render_model(char *dst, int32_t dstSize);
int c_consumer_check_format(const char *query);

int c_consumer_render_model(char *dst, int32_t dstSize)
{
    system_model_record model;
    memset(&model, 0, sizeof model);
    snprintf(model.devicevEnder, sizeof model.devicevEnder, "%s", "c-vendor");
    snprintf(model.name, sizeof model.name, "%s", "c-name");
    snprintf(model.deviceModel, sizeof model.deviceModel, "%s", "c-model");
    return get_system_model_json(&model, dst, dstSize);
}

int c_consumer_check_format(const char *query)
{
    return zk_check_format_json(query);
}
