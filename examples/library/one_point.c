/* One point from WGS84 into all systems, by the C interface. */
#include <kelvo/kelvo.h>
#include <stdio.h>

int main(void) {
    kelvo_converter* converter = NULL;
    char* message = NULL;
    if (kelvo_converter_new("zone 2\nadd 1\n", NULL, &converter, &message) != KELVO_OK) {
        fprintf(stderr, "%s\n", message ? message : "out of memory");
        kelvo_text_free(message);
        return 1;
    }
    const kelvo_given given = {37.5, 127.0, 50.0};
    kelvo_point point;
    if (kelvo_convert(converter, KELVO_WGS, &given, &point, 1) == KELVO_OK && point.status == 0)
        printf("%.6f %.6f %.4f\n", point.tm_x, point.tm_y, point.tm_h);
    kelvo_converter_free(converter);
    return 0;
}
