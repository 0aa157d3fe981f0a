/* A firmware-side program built against an installed middleware: renders a
   model document and a set reply and checks what it got. */
#include <middleware.h>

#include <stdio.h>
#include <string.h>

int main(void)
{
    system_model_record model;
    char body[512];
    memset(&model, 0, sizeof model);
    snprintf(model.devicevEnder, sizeof model.devicevEnder, "%s", "vendor");
    snprintf(model.name, sizeof model.name, "%s", "name");
    snprintf(model.deviceModel, sizeof model.deviceModel, "%s", "model");
    if (get_system_model_json(&model, body, (int32_t)sizeof body) != 0 ||
        strcmp(body, "{\n\t\"devicevEnder\":\t\"vendor\",\n\t\"name\":\t\"name\",\n\t\"deviceModel\":\t\"model\"\n}") != 0) {
        fprintf(stderr, "unexpected model document:\n%s\n", body);
        return 1;
    }
    if (zk_return_set_request_succeed_json(body, (int32_t)sizeof body) != 0 ||
        strcmp(body, "{\n\t\"setState\":\t\"succeed\"\n}") != 0) {
        fprintf(stderr, "unexpected reply:\n%s\n", body);
        return 1;
    }
    puts("consumer: ok");
    return 0;
}
