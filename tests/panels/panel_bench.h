// The parameter panels and the one-point panel on a disk in memory.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

#include "panels/one_point_panel.h"
#include "panels/parameter_panels.h"
#include "support/faults.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo::testing {

// Parameters as a user of the centre zone with the preset of 2002 has them.
[[nodiscard]] inline TransPara usualParameters() {
    TransPara cfg;
    cfg.dX = 115.8;
    cfg.dY = -474.99;
    cfg.dZ = -674.11;
    cfg.Omega = 1.16;
    cfg.Phi = -2.31;
    cfg.Kappa = -1.63;
    cfg.dS = -6.43;
    cfg.Kind = ShiftKind::Bursa;
    cfg.a = cfg.Ua = 6377397.155;
    cfg.f = cfg.Uf = 299.1528128;
    cfg.Zone = TmZone::Centre;
    cfg.UZone = UtmZone::East;
    cfg.AddFlag = Flag::On;
    return cfg;
}

class PanelBench : public ::testing::Test {
protected:
    PanelBench() {
        disk.addFolder("/app");
        disk.addFolder("/app/data");
        state.applicationFolder = "/app";
        state.CorPath = "/app/kelvo.cor";
        state.RecentFiles[1] = "/app/data/a.dat";
        state.Cfg = usualParameters();
        load();
    }

    // What loading the window does to the panels.
    void load() {
        if (parameters.controls().cmb7Para.items().empty()) parameters.fillPresetList();
        parameters.showFlags();
        panel.FillDefault();
        parameters.FillDefault();
        state.conversion.ParaDirty = true;
    }

    [[nodiscard]] Control& at(std::string_view name) {
        Control* control = form.find(name);
        if (control == nullptr) throw std::logic_error("no control " + std::string(name));
        return *control;
    }
    [[nodiscard]] const std::string& text(std::string_view name) { return at(name).text(); }
    void type(std::string_view name, std::string_view words) { at(name).typeText(words); }
    void click(std::string_view name) { at(name).click(); }
    [[nodiscard]] bool on(std::string_view name) { return at(name).value(); }

    // A position in decimal degrees in the WGS or the user frame.
    void typeWgs(std::string_view phi, std::string_view lam, std::string_view height) {
        click("optWdeg");
        type("txtWdegPhi", phi);
        type("txtWdegLam", lam);
        type("txtWdegTH", height);
    }
    void typeUser(std::string_view phi, std::string_view lam, std::string_view height) {
        click("optBdeg");
        type("txtBdegPhi", phi);
        type("txtBdegLam", lam);
        type("txtBdegH", height);
    }

    MemoryDisk disk;
    RecordingMessages messages;
    ProgramState state;
    Form form;
    Control& frmeOne = form.frame("frmeOne", "frmKelvo", "");
    ParameterPanels parameters{form, state};
    int written = 0;  // how often the configuration was written
    std::function<void()> whenWritten;
    OnePointPanel panel{form, frmeOne, parameters, state, disk, messages, [this] {
                            ++written;
                            if (whenWritten) whenWritten();
                        }};
};

}  // namespace kelvo::testing
