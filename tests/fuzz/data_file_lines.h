// Lines of data files, and of known points after a line "@known", for fuzzers that read both.
#pragma once

#include <string_view>

namespace kelvo::fuzz {

inline constexpr std::string_view kKnown = "@known\n";

inline constexpr std::string_view kDataFileLines[] = {
    "7 para",
    "115.8 -474.99 -674.11",
    "1.16 -2.31 -1.63",
    "-6.43",
    "7",
    "1st corr 0.12 -0.23 0.76",
    "1st 1 2 3",
    "CORRECTION",
    "NO CORR",
    "zone 2",
    "zone 5",
    "zone 6",
    "add 10.405",
    "add 0",
    "INPUT deg",
    "INPUT ddd.mmssss",
    "OUTPUT deg",
    "OUTPUT ddd mm ss.ss",
    "OUTPUT ddd-mm-ss.ss",
    "OUTPUT ddd.mmssss",
    "TM para",
    "6377397.155 299.1528128",
    "38 127",
    "500000 200000",
    "1",
    "0.9996",
    "UTM para",
    "UTM 123",
    "UTM 129",
    "WGS a 37.35332567 126.32293454 30.1756",
    "UGS b 37.35332567 126.32293454 7.1756",
    "TM c 377504.2345 125963.97405 7.239",
    "UTM d 4098671.926334 233069.905228 7.1756",
    "    e 37.3 127 1",
    "    f 377504.2345 125963.97405 7.239",
    "DIST a b",
    "     c d",
    "* ",
    "end",
    "@known",
    "k 37.35333267 126.32323448 30.1756 37.35230997 126.32395917 40.3717 1",
    "m 37.3448 126.57 40.25 37.34381009 126.57075821 51.6997 1",
    "*",
};

}  // namespace kelvo::fuzz
