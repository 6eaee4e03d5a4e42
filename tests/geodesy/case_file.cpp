#include "geodesy/case_file.h"

#include <cmath>
#include <iomanip>
#include <optional>
#include <sstream>

#include "common/run_time_fault.h"
#include "geodesy/datum_shift.h"

namespace kelvo::testing {
namespace {

using Numbers = std::vector<double>;

class CaseRunner {
public:
    CaseRunner() { KelvoSub::fillGeoidTables(geoid_); }

    void line(int number, const std::string& text) {
        const std::string plain = text.substr(0, text.find('#'));
        std::istringstream in(plain);
        std::string verb;
        if (!(in >> verb)) return;
        number_ = number;
        line_ = plain;
        if (!known(verb, in)) complain("unreadable");
    }

    CaseReport report;

private:
    bool known(const std::string& verb, std::istringstream& in) {
        if (verb == "ellipsoid") return takes(in, 2, [&](const Numbers& n) { ellipsoid(n); });
        if (verb == "origin") return takes(in, 5, [&](const Numbers& n) { origin(n); });
        if (verb == "tolerance") return readTolerance(in, tolerance_, unit_);
        if (verb == "heights") {
            std::string unit;
            return readTolerance(in, heightTolerance_, unit) && unit == "m";
        }
        if (verb == "forward")
            return compares(in, 2, 2, "m", [&](const Numbers& n) { return forward(n); });
        if (verb == "backward")
            return compares(in, 2, 2, "deg", [&](const Numbers& n) { return backward(n); });
        if (verb == "geocentric")
            return compares(in, 3, 3, "m", [&](const Numbers& n) {
                const auto p = KelvoSub::GeoToXYZ(n[0], n[1], n[2], ellipsoid_);
                return Numbers{p.X, p.Y, p.Z};
            });
        if (verb == "shift")
            return takes(in, 8, [&](const Numbers& n) {
                KelvoSub::SetDatumPara(datum_, {n[0], n[1], n[2], n[3], n[4], n[5], n[6]},
                                       ShiftKind{static_cast<std::int16_t>(n[7])});
            });
        if (verb == "shifted")
            return compares(in, 3, 3, "m", [&](const Numbers& n) {
                const auto p = KelvoSub::ShiftForward(datum_.shift, {n[0], n[1], n[2]});
                return Numbers{p.X, p.Y, p.Z};
            });
        if (verb == "unshifted")
            return compares(in, 3, 3, "m", [&](const Numbers& n) {
                const auto p = KelvoSub::ShiftInverse(datum_.shift, {n[0], n[1], n[2]});
                return Numbers{p.X, p.Y, p.Z};
            });
        if (verb == "geographic")
            return compares(in, 3, 3, "deg", [&](const Numbers& n) { return geographic(n); });
        if (verb == "geoid")
            return compares(in, 2, 2, "m", [&](const Numbers& n) {
                return Numbers{KelvoSub::GeoidHeightBessel(geoid_, n[0], n[1]),
                               KelvoSub::GeoidHeight(geoid_, n[0], n[1])};
            });
        if (verb == "roundtrip") return roundtrip(in);
        if (verb == "forward_fails")
            return takes(in, 2, [&](const Numbers& n) {
                expectFailure(forward(n), {projection_.X0, projection_.Y0});
            });
        if (verb == "backward_fails")
            return takes(in, 2, [&](const Numbers& n) {
                expectFailure(backward(n), {projection_.Phi0, projection_.Lam0});
            });
        if (verb == "geographic_fails")
            return takes(in, 3, [&](const Numbers& n) {
                Numbers found = geographic(n);
                found.resize(2);
                expectFailure(found, {0, 0});
            });
        return false;
    }

    static std::optional<Numbers> numbers(std::istream& in, std::size_t count) {
        Numbers result(count);
        for (double& n : result) {
            if (!(in >> n)) return std::nullopt;
        }
        return result;
    }

    static bool finished(std::istream& in) {
        std::string rest;
        return !(in >> rest);
    }

    template <class Action>
    bool takes(std::istream& in, std::size_t count, Action action) {
        const auto given = numbers(in, count);
        if (!given || !finished(in)) return false;
        action(*given);
        return true;
    }

    template <class Compute>
    bool compares(std::istream& in, std::size_t given, std::size_t wanted, const std::string& unit,
                  Compute compute) {
        const auto arguments = numbers(in, given);
        std::string arrow;
        if (!arguments || !(in >> arrow) || arrow != "->") return false;
        const auto expected = numbers(in, wanted);
        if (!expected || !finished(in) || unit_ != unit) return false;
        failures_ = 0;
        const Numbers found = compute(*arguments);
        ++report.checks;
        if (failures_ > 0) complain("failed");
        for (std::size_t i = 0; i < wanted; ++i) {
            // a height beside two angles is in metres
            const double limit = unit == "deg" && i == 2 ? heightTolerance_ : tolerance_;
            if (!(std::fabs(found[i] - (*expected)[i]) <= limit)) complain(text(found));
        }
        return true;
    }

    bool roundtrip(std::istream& in) {
        const auto given = numbers(in, 2);
        double limit = 0;
        std::string unit;
        if (!given || !readTolerance(in, limit, unit) || unit != "deg") return false;
        const Numbers found = backward(forward(*given));
        ++report.checks;
        for (std::size_t i = 0; i < 2; ++i) {
            if (!(std::fabs(found[i] - (*given)[i]) <= limit)) complain(text(found));
        }
        return true;
    }

    static bool readTolerance(std::istream& in, double& limit, std::string& unit) {
        return (in >> limit >> unit) && finished(in) && (unit == "m" || unit == "deg");
    }

    void ellipsoid(const Numbers& n) { ellipsoid_ = {n[0], n[1]}; }
    void origin(const Numbers& n) { projection_ = {n[0], n[1], n[2], n[3], n[4]}; }

    template <class T>
    const T& remember(const Guarded<T>& result) {
        if (result.failed) ++failures_;
        return result.value;
    }

    Numbers forward(const Numbers& n) {
        const auto p = remember(KelvoSub::GeoToTM(n[0], n[1], ellipsoid_, projection_));
        return {p.X, p.Y};
    }
    Numbers backward(const Numbers& n) {
        const auto p = remember(KelvoSub::TMToGeo(n[0], n[1], ellipsoid_, projection_));
        return {p.Phi, p.Lam};
    }
    Numbers geographic(const Numbers& n) {
        const auto p = remember(KelvoSub::XYZToGeo({n[0], n[1], n[2]}, ellipsoid_));
        return {p.Phi, p.Lam, p.h};
    }

    void expectFailure(const Numbers& found, const Numbers& fallback) {
        ++report.checks;
        if (failures_ != 1) complain("didn't fail");
        if (found != fallback) complain(text(found));
        failures_ = 0;
    }

    static std::string text(const Numbers& found) {
        std::ostringstream out;
        out << "came out as" << std::setprecision(17);
        for (const double n : found) out << ' ' << n;
        return out.str();
    }

    void complain(const std::string& what) {
        report.complaints.push_back("line " + std::to_string(number_) + ": " + line_ + ": " + what);
    }

    int number_ = 0;
    std::string line_;
    Ellipsoid ellipsoid_;
    Projection projection_;
    double tolerance_ = 0;
    double heightTolerance_ = 0.0001;
    std::string unit_ = "m";
    DatumState datum_;
    GeoidTables geoid_;
    int failures_ = 0;
};

}  // namespace

CaseReport runCases(std::string_view text) {
    CaseRunner runner;
    std::istringstream lines{std::string(text)};
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) runner.line(number, line);
    return runner.report;
}

}  // namespace kelvo::testing
