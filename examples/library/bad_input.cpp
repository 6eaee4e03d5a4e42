// What is wrong with a definition, and with a point.
#include <kelvo/converter.h>

#include <cstdio>

int main() {
    try {
        const kelvo::Converter converter({.parameters = "add 1\nutm 117\n"});
    } catch (const kelvo::DefinitionError& error) {
        std::printf("%s\n", error.what());
    }
    const kelvo::Converter converter;
    const kelvo::Point point = converter.convert(kelvo::System::Wgs, {40000.0, 127.0, 0.0});
    if (point.status != 0) std::printf("%s\n", converter.statusText(point.status).c_str());
}
