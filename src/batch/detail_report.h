// The layout of kelvo.det: the account of the known points, and a row for each corrected point.
#pragma once

#include <string>
#include <string_view>

#include "common/text_file.h"
#include "correction/corr_statistics.h"
#include "correction/find_corr.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// Writes into an open file, line by line; angles in one form. Every writer may raise the faults of
// AngleText and of the file.
class DetailReport {
public:
    DetailReport(TextWriter& det, AngleForm form) : det_(det), form_(form) {}

    void title();
    // Known point, its user coordinates, the computed ones and the miss.
    void knownPoint(const CorrPoint& point, const MeasuredMiss& miss);
    void sums(const MissTotals& totals);
    void means(const MissMeans& means);
    // The label says mean deviation, the figures are standard deviations (required).
    void deviations(const MissDeviations& deviations, double L);
    void outliers(std::string_view names);
    void headOfCorrections();
    void correction(std::string_view name, const Correction& correction, double L);

private:
    void blank() { det_.line(" "); }
    void empty() { det_.line(""); }
    void row(std::string_view label, double Phi, double Lam, double h);
    void row(std::string_view label, double Phi, double Lam, double h, double L);
    void startRow(std::string_view label, double Phi, double Lam, double h);
    void endRow();

    TextWriter& det_;
    AngleForm form_;
    std::string line_;
};

}  // namespace kelvo
