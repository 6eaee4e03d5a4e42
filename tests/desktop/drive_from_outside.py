#!/usr/bin/env python3
"""Drives the real window from outside, as assistive technology does.

    drive_from_outside.py KELVO [work|fault|titles|ends]

Starts the program on a display of its own. "work" finds every control by its description, does a
batch run, walks one point there and back, and prints to a PDF file. "fault" asks for
the plot with a box that holds no number while the viewer holds unsaved text, and looks at the
report, the rescue file and the exit code. "titles" reads the titles of window, box and dialog
from the display, under a window manager. "ends" types a text and ends the program by signals and by
taking its display away: each time the next start brings the text back. Exit code 77 (skipped) with a
clear word where a package is missing.
"""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
INSIDE = "KELVO_DRIVEN_INSIDE"


def skip(word):
    print("skipped: " + word)
    sys.exit(SKIPPED)


def python_with_bindings():
    """The platform's own python3 has the bindings; the one on PATH may be another."""
    for python in (sys.executable, "/usr/bin/python3"):
        probe = "import gi; gi.require_version('Atspi','2.0'); from gi.repository import Atspi"
        if subprocess.run([python, "-c", probe], capture_output=True, check=False).returncode == 0:
            return python
    return None


def start_on_own_display(kelvo):
    for program, package in (("xvfb-run", "xvfb xauth"), ("dbus-run-session", "dbus")):
        if not shutil.which(program):
            skip("%s is missing (apt-get install %s)" % (program, package))
    if sys.argv[2:3] == ["titles"]:
        for program in ("openbox", "xdotool", "xprop", "xwininfo"):
            if not shutil.which(program):
                skip("%s is missing" % program)
    python = python_with_bindings()
    if python is None:
        skip("AT-SPI for Python is missing "
             "(apt-get install at-spi2-core gir1.2-atspi-2.0 python3-gi)")
    environment = dict(os.environ)
    environment[INSIDE] = "1"
    environment.pop("QT_QPA_PLATFORM", None)
    # A number of its own to start the search at: two searches at one time would collide.
    display = str(200 + os.getpid() % 700)
    command = ["xvfb-run", "-a", "-n", display, "-s", "-screen 0 1366x900x24", "dbus-run-session", "--",
               python, os.path.abspath(__file__), kelvo] + sys.argv[2:]
    sys.exit(subprocess.run(command, env=environment, check=False, timeout=240).returncode)


if INSIDE not in os.environ:
    start_on_own_display(os.path.abspath(sys.argv[1]))

import gi  # noqa: E402

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

Atspi.set_timeout(800, 800)


def walk(node):
    yield node
    try:
        children = [node.get_child_at_index(index) for index in range(node.get_child_count())]
    except Exception:  # it went away while it was looked at
        return
    for child in children:
        if child:
            yield from walk(child)


def everything():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        yield from walk(desktop.get_child_at_index(index))


def find(test, what, patience=20.0):
    end = time.time() + patience
    while time.time() < end:
        for node in everything():
            try:
                if test(node):
                    return node
            except Exception:  # it went away while it was looked at
                pass
        time.sleep(0.1)
    raise SystemExit("not found: " + what)


def control(name):
    return find(lambda node: node.get_description() == name, name)


def named(name):
    return find(lambda node: node.get_name() == name, name)


def act(node, name):
    for index in range(Atspi.Action.get_n_actions(node)):
        if Atspi.Action.get_action_name(node, index) == name:
            try:
                Atspi.Action.do_action(node, index)
            except Exception:  # a modal box holds the answer back
                pass
            time.sleep(0.5)  # Qt clicks a moment later
            return
    raise SystemExit("no action %s: %s %s" % (name, node.get_description(), node.get_name()))


def press(name):
    act(control(name), "Press")


def choose(caption):
    act(find(lambda node: node.get_role_name() == "menu item" and node.get_name() == caption,
             caption), "Press")


def text_of(name):
    node = control(name)
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


def type_into(name, text):
    Atspi.EditableText.set_text_contents(control(name), text)
    time.sleep(0.1)


def wait_for(test, what, patience=20.0):
    end = time.time() + patience
    while time.time() < end:
        try:
            if test():
                return
        except Exception:  # the widget is being made anew
            pass
        time.sleep(0.1)
    raise SystemExit("in vain: " + (what() if callable(what) else what))


def showing(name):
    return control(name).get_state_set().contains(Atspi.StateType.SHOWING)


def control_names():
    """Every control that a widget stands for, from where the form declares them."""
    root = pathlib.Path(__file__).resolve().parents[2] / "src"
    names = []
    kinds = "frame|textBox|multiLineBox|option|check|combo|button|label|picture"
    for path in sorted(root.glob("panels/*_controls.h")) + [root / "shell/window_controls.h"]:
        names += re.findall(r"form\.(?:%s)\(\s*\"(\w+)\"" % kinds, path.read_text("utf-8"))
    return names


def toggle_options():
    """What the form holds behind an option shows in the boxes that its handler fills."""
    assert control("optJeju").get_role_name() == "radio button", control("optJeju").get_role_name()
    for option, box, text in (("optJeju", "txtX0", "550000"), ("optEast", "txtLam0", "129"),
                              ("optUTM3", "txtULam0", "123"), ("optUTM9", "txtULam0", "129")):
        act(control(option), "Toggle")
        wait_for(lambda name=box, wanted=text: text_of(name) == wanted, option)
    enabled = lambda name: control(name).get_state_set().contains(Atspi.StateType.ENABLED)
    act(control("optUser"), "Toggle")
    wait_for(lambda: enabled("txtLam0"), "optUser")
    act(control("optWdeg"), "Toggle")
    wait_for(lambda: enabled("txtWdegPhi") and not enabled("txtWdmsPhi"), "optWdeg")
    act(control("optWdms"), "Toggle")
    wait_for(lambda: enabled("txtWdmsPhi") and not enabled("txtWdegPhi"), "optWdms")
    print("options toggled from outside reach the form")


def drive(folder):
    control("frmKelvo")
    wanted = set(control_names())
    assert len(wanted) > 100, wanted
    found = {node.get_description() for node in everything()}
    missing = sorted(wanted - found)
    assert not missing, "no widget: %s" % missing
    print("%d controls found by their descriptions" % len(wanted))

    choose("변환하기")
    result = folder / "data" / "test.out"
    wait_for(lambda: result.exists() and "인천No-3" in text_of("Richtxt"), "the result")
    print("batch run: %d bytes" % result.stat().st_size)

    choose("입력창 열기")
    toggle_options()
    for box, value in (("txtWdmsPhi", "37.35332567"), ("txtWdmsLam", "126.32293454"),
                       ("txtWdmsTH", "30.1756")):
        type_into(box, value)
    # Each arrow with a box that it fills; a mark in the box shows when that has happened.
    for arrow, box in (("cmdW2B", "txtBdmsPhi"), ("cmdGP2TM", "txtX"), ("cmdTM2UTM", "txtUX"),
                       ("cmdUTM2TM", "txtX"), ("cmdTM2GP", "txtBdmsPhi"),
                       ("cmdB2W", "txtWdmsPhi")):
        type_into(box, "1")
        wait_for(lambda name=box: text_of(name) == "1", "the mark in " + box)
        press(arrow)
        wait_for(lambda name=box: text_of(name) != "1", arrow)
    back = float(text_of("txtWdmsPhi")), float(text_of("txtWdmsLam"))
    assert abs(back[0] - 37.35332567) < 1e-6 and abs(back[1] - 126.32293454) < 1e-6, back
    print("one point there and back: %.8f %.8f" % back)
    press("cmdOneClose")
    wait_for(lambda: not showing("cmdOneClose"), "the closed panel")

    choose("변환하기")
    wait_for(lambda: control("cmdShow").get_name() == "그림보기" and showing("cmdShow"),
             "the result again")
    press("cmdShow")
    wait_for(lambda: showing("pctPlot"), "the plot")
    press("cmdPrint")
    act(find(lambda node: node.get_role_name() in ("push button", "button")
             and node.get_name() in ("인쇄", "Print"), "the preview's print button"), "Press")
    pdf = folder / "plot.pdf"
    box = find(lambda node: node.get_role_name() == "text"
               and node.get_name().startswith(("출력 파일", "Output file")), "the file's box")
    Atspi.EditableText.set_text_contents(box, str(pdf))
    time.sleep(0.3)
    act(find(lambda node: node.get_name() in ("인쇄(P)", "Print", "Print(P)")
             and node.get_role_name() in ("push button", "button")
             and node.get_description() != "cmdPrint", "the dialog's print button"), "Press")
    wait_for(lambda: pdf.exists() and pdf.stat().st_size > 1000, "the PDF file")
    print("printed: %d bytes of PDF" % pdf.stat().st_size)


def end_with_a_fault(folder, program):
    """Returns when the program has ended."""
    choose("변환하기")
    wait_for(lambda: "인천No-3" in text_of("Richtxt") and showing("Richtxt"), "the result")
    typed = "저녁 내내 친 글"
    type_into("Richtxt", typed)
    press("cmdShow")
    wait_for(lambda: showing("txtFontSize"), "the plot's boxes")
    type_into("txtFontSize", "여덟")
    press("cmdPlot")
    report = find(lambda node: "오류 13" in (node.get_name() or ""), "the report")
    words = report.get_name()
    rescued = list(folder.glob("rescue-*.txt"))
    assert len(rescued) == 1, rescued
    assert str(rescued[0]) in words, words
    assert rescued[0].read_bytes() == typed.encode("cp949"), rescued[0].read_bytes()
    assert program.poll() is None, "the report doesn't wait"
    print("the report names %s" % rescued[0].name)
    act(find(lambda node: node.get_name().startswith("확인")
             and node.get_role_name() in ("push button", "button")
             and not node.get_description().startswith("cmd"), "the report's button"), "Press")
    code = program.wait(20)
    assert code == 1, "exit code %d" % code
    print("exit code 1")


def titles_on_display():
    """The titles that the program's windows have on the display, as the display knows them."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "kelvo"],
                           capture_output=True, text=True, check=False).stdout.split()
    titles = []
    for window in found:
        line = subprocess.run(["xprop", "-id", window, "-notype", "_NET_WM_NAME"],
                              capture_output=True, text=True, check=False,
                              env=dict(os.environ, LC_ALL="C.UTF-8")).stdout
        if "=" in line:
            titles.append(line.split("=", 1)[1].strip().strip('"').strip())
    return titles


def outer_place():
    """Where the frame of the main window stands: x, y, width, height."""
    tree = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True,
                          check=True, env=dict(os.environ, LC_ALL="C.UTF-8")).stdout
    line = next(line for line in tree.splitlines() if "좌표변환프로그램" in line)
    width, height, x, y = map(int, re.search(
        r"(\d+)x(\d+)\+-?\d+\+-?\d+ +\+(-?\d+)\+(-?\d+)", line).groups())
    extents = subprocess.run(["xprop", "-id", line.split()[0], "-notype", "_NET_FRAME_EXTENTS"],
                             capture_output=True, text=True, check=True).stdout
    left, right, top, bottom = (int(n) for n in extents.split("=")[1].split(","))
    assert top > 0, "the window manager gives no title bar"
    return x - left, y - top, width + left + right, height + top + bottom


def window_manager():
    """There before any window: one that is shown while it takes over the display may be lost."""
    manager = subprocess.Popen(["openbox"])
    wait_for(lambda: "window id" in subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True,
                                                   text=True, check=False).stdout, "the window manager")
    return manager


def look_at_titles(folder):
    data = folder / "data" / "test.DAT"
    control("frmKelvo")
    wanted = "좌표변환프로그램 Kelvo "
    wait_for(lambda: any(title.startswith(wanted) for title in titles_on_display()), "the title")
    title, = [title for title in titles_on_display() if title]
    wait_for(lambda: outer_place() == (0, 0, round(1366 * 0.88), round(900 * 0.88)),
             lambda: "the frame in its place, not at %s" % (outer_place(),))
    print("frame: %s" % (outer_place(),))
    assert title.endswith(" - " + str(data.with_name("test.dat"))), title
    print("window: " + title)
    choose("About")
    named_ok = lambda: find(lambda node: node.get_name().startswith("확인")
                            and node.get_role_name() in ("push button", "button")
                            and not node.get_description().startswith("cmd"), "확인")
    box = named_ok()
    wait_for(lambda: len(titles_on_display()) == 2, "the box")
    wait_for(lambda: sorted(titles_on_display()) == sorted(["", title]),
             "titles %s" % titles_on_display())
    act(box, "Press")
    choose("Editor 설정")
    wait_for(lambda: "Editor Program 설정" in titles_on_display(), "the dialog's title")
    press_cancel = find(lambda node: node.get_name() in ("취소", "취소(C)", "Cancel")
                        and node.get_role_name() in ("push button", "button"), "취소")
    act(press_cancel, "Press")
    print("box and dialog have their own titles")


def started(folder, **environment):
    """The program, once its window is there."""
    for _ in range(4):  # on a busy machine the display takes its time to come up
        program = subprocess.Popen([sys.argv[1], "--app-folder", str(folder)],
                                   env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", **environment))
        try:
            control("frmKelvo")
            return program
        except SystemExit:
            program.kill()
            program.wait(20)
    raise SystemExit("the window doesn't come")


def journal(folder):
    return [path for path in folder.glob("unsaved/*/viewer.txt")]


def display_of_its_own():
    number = ":%d" % (1000 + os.getpid() % 10000)
    server = subprocess.Popen(["Xvfb", number, "-screen", "0", "1280x900x24", "-nolisten", "tcp"],
                              stderr=subprocess.DEVNULL)
    wait_for(lambda: pathlib.Path("/tmp/.X11-unix/X" + number[1:]).exists(), "the display")
    return number, server


def end_in_every_way(folder):
    for number, way in enumerate(("SIGKILL", "SIGABRT", "SIGTERM", "SIGHUP", "display")):
        server = None
        if way == "display":
            name, server = display_of_its_own()
            program = started(folder, DISPLAY=name)
        else:
            program = started(folder)
        choose("입력데이터수정")
        wait_for(lambda: showing("Richtxt"), "the viewer")
        typed = "저녁 내내 친 글 %d" % number
        type_into("Richtxt", typed)
        if way in ("SIGTERM", "SIGHUP"):
            program.send_signal(getattr(signal, way))  # with no time to write a journal before
            assert program.wait(20) == 0, way
        else:
            wait_for(lambda: journal(folder), "the journal", 10)
            if way == "display":
                server.terminate()
                server.wait(20)
            else:
                program.send_signal(getattr(signal, way))
            assert program.wait(20) != 0, way
        assert journal(folder), way

        program = started(folder)
        try:
            offer = find(lambda node: "저장하지 않고 끝난 글" in (node.get_name() or ""), "the offer")
            assert "test.dat" in offer.get_name(), offer.get_name()
            act(find(lambda node: node.get_name() == "되살리기"
                     and node.get_role_name() in ("push button", "button"), "its button"), "Press")
            wait_for(lambda: text_of("Richtxt") == typed, "the text")
            press("cmdSave")
            wait_for(lambda: not journal(folder), "the journal to go")
            assert (folder / "data/test.dat").read_bytes() == typed.encode("cp949")
        finally:
            program.terminate()
            program.wait(20)
        print("%s: the text came back and was saved" % way)



def main():
    session = sys.argv[2] if len(sys.argv) > 2 else "work"
    with tempfile.TemporaryDirectory(prefix="kelvo") as place:
        folder = pathlib.Path(place) / "app"
        if session == "ends":
            end_in_every_way(folder)
            print("done")
            return
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        manager = window_manager() if session == "titles" else None
        for _ in range(4):  # on a busy machine the display takes its time to come up
            program = subprocess.Popen([sys.argv[1], "--app-folder", str(folder)],
                                       env=environment)
            time.sleep(3)
            if program.poll() is None:
                break
        try:
            if session == "fault":
                end_with_a_fault(folder, program)
            elif session == "titles":
                look_at_titles(folder)
            else:
                drive(folder)
        finally:
            if manager:
                manager.terminate()
            program.terminate()
            program.wait(20)
    print("done")


main()
