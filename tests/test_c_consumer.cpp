// A C11 translation unit includes the public header and calls the library.
#include "support.h"

extern "C" int c_consumer_render_model(char *dst, int32_t dstSize);
extern "C" int c_consumer_check_format(const char *query);

TEST(CConsumer, RendersThroughTheCHeader)
{
    const std::string text = test::rendered(c_consumer_render_model);
    EXPECT_EQ(text, "{\n\t\"devicevEnder\":\t\"c-vendor\",\n\t\"name\":\t\"c-name\",\n\t\"deviceModel\":\t\"c-model\"\n}");
    EXPECT_EQ(c_consumer_check_format("page=1&format=json"), 1);
}
