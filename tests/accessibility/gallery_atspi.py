#!/usr/bin/python3
"""Reads every gallery page the way a Linux screen reader does and fails on
what it could not announce.

Starts a private X server, session bus and accessibility bus, runs the
gallery once per page and walks its tree over AT-SPI. A page fails when
  - a showing control (button, check box, combo box, list, list item, page
    tab, entry, slider, menu item, link, ...) has no name;
  - a focusable node (a Tab stop) has no name;
  - a toggle is not recognisable as one: a check box, radio button or
    toggle button says so by its role (Qt 6.4's bridge never sends the
    checkable state), anything else that offers the "Toggle" action needs
    the checkable state, or it reads as a plain button until it is on;
  - something paints a sizeable area with no name and no children, so a
    screen reader finds one empty filler there;
  - its content area (named after the page) is missing or has nothing
    named inside;
  - an item reports focus while its view does not have it, or two unrelated
    nodes report focus.

usage: gallery_atspi.py GALLERY [PAGE...]
Exits 77 (skipped) when Xvfb, D-Bus, the AT-SPI bus or pyatspi is missing.
"""

import importlib.util
import os
import select
import shutil
import subprocess
import sys
import tempfile
import time

SKIP = 77
APP_TIMEOUT = 20.0  # seconds for a gallery to show up on the bus
AT_SPI_LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
REGISTRYDS = ("/usr/libexec/at-spi2-registryd", "/usr/lib/at-spi2-core/at-spi2-registryd")
# Painted areas at least this large must expose something.
SILENT_AREA = 96 * 96


def skip(reason):
    print("SKIP: " + reason + "; the accessibility walk needs Xvfb, dbus, at-spi2-core and "
          "python3-pyatspi (scripts/dev.sh installs them)")
    sys.exit(SKIP)


def first_existing(paths):
    return next((p for p in paths if os.access(p, os.X_OK)), None)


def read_line(stream, timeout, what):
    ready, _, _ = select.select([stream], [], [], timeout)
    if not ready:
        raise RuntimeError("timed out waiting for " + what)
    line = stream.readline()
    if not line:
        raise RuntimeError(what + " exited early")
    return line.decode().strip()


class Session:
    """Xvfb, a session bus and the accessibility bus, torn down in reverse."""

    def __init__(self):
        self.procs = []

    def start(self, args, **kwargs):
        proc = subprocess.Popen(args, stdin=subprocess.DEVNULL, **kwargs)
        self.procs.append(proc)
        return proc

    def close(self):
        for proc in reversed(self.procs):
            if proc.poll() is None:
                proc.terminate()
        for proc in reversed(self.procs):
            try:
                proc.wait(timeout=5)
            except subprocess.TimeoutExpired:
                proc.kill()
                proc.wait()

    def open(self, launcher, registryd):
        read_fd, write_fd = os.pipe()
        self.start(["Xvfb", "-displayfd", str(write_fd), "-screen", "0", "1280x900x24", "-nolisten",
                    "tcp", "-noreset"], pass_fds=(write_fd,), stderr=subprocess.DEVNULL)
        os.close(write_fd)
        with os.fdopen(read_fd, "rb") as pipe:
            os.environ["DISPLAY"] = ":" + read_line(pipe, 15, "Xvfb")

        bus = self.start(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"],
                         stdout=subprocess.PIPE)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = read_line(bus.stdout, 15, "dbus-daemon")
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        self.start([launcher, "--launch-immediately"], stderr=subprocess.DEVNULL)
        wait_for_a11y_bus()
        if registryd:
            self.start([registryd], stderr=subprocess.DEVNULL)


def wait_for_a11y_bus():
    from gi.repository import Gio, GLib

    connection = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    deadline = time.monotonic() + 15
    while True:
        try:
            reply = connection.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                                         None, GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, 2000, None)
            if reply.unpack()[0]:
                return
        except GLib.Error:
            pass
        if time.monotonic() > deadline:
            raise RuntimeError("the accessibility bus did not start")
        time.sleep(0.1)


def list_pages(gallery):
    out = subprocess.run([gallery, "--list-pages"], check=True, capture_output=True, text=True,
                         env=dict(os.environ, QT_QPA_PLATFORM="offscreen")).stdout
    return [tuple(line.split("\t", 1)) for line in out.splitlines() if "\t" in line]


class Walker:
    def __init__(self, pyatspi):
        p = pyatspi
        self.p = p
        self.interactive = {
            p.ROLE_PUSH_BUTTON, p.ROLE_TOGGLE_BUTTON, p.ROLE_CHECK_BOX, p.ROLE_RADIO_BUTTON,
            p.ROLE_COMBO_BOX, p.ROLE_LIST, p.ROLE_LIST_BOX, p.ROLE_LIST_ITEM, p.ROLE_PAGE_TAB,
            p.ROLE_PAGE_TAB_LIST, p.ROLE_ENTRY, p.ROLE_PASSWORD_TEXT, p.ROLE_SPIN_BUTTON, p.ROLE_SLIDER,
            p.ROLE_MENU_ITEM, p.ROLE_CHECK_MENU_ITEM, p.ROLE_RADIO_MENU_ITEM, p.ROLE_MENU, p.ROLE_LINK,
            p.ROLE_TREE, p.ROLE_TREE_ITEM, p.ROLE_TABLE, p.ROLE_TABLE_CELL, p.ROLE_SCROLL_PANE,
        }
        self.toggles = {p.ROLE_TOGGLE_BUTTON, p.ROLE_CHECK_BOX, p.ROLE_RADIO_BUTTON, p.ROLE_CHECK_MENU_ITEM,
                        p.ROLE_RADIO_MENU_ITEM}
        self.buttons = {p.ROLE_PUSH_BUTTON, p.ROLE_PUSH_BUTTON_MENU}
        self.containers = {p.ROLE_SCROLL_PANE, p.ROLE_FILLER, p.ROLE_PANEL}
        self.items = {p.ROLE_LIST_ITEM, p.ROLE_TABLE_CELL, p.ROLE_TREE_ITEM, p.ROLE_PAGE_TAB}
        self.views = {p.ROLE_LIST, p.ROLE_LIST_BOX, p.ROLE_TABLE, p.ROLE_TREE, p.ROLE_TREE_TABLE,
                      p.ROLE_PAGE_TAB_LIST}
        self.silent = {p.ROLE_FILLER, p.ROLE_PANEL, p.ROLE_UNKNOWN, p.ROLE_CANVAS, p.ROLE_DRAWING_AREA,
                       p.ROLE_IMAGE}
        self.faults = []
        self.focused = []
        self.panes = {}  # scroll pane name -> named nodes inside it
        self.counts = {"nodes": 0, "named": 0, "controls": 0, "toggles": 0, "headings": 0}

    @staticmethod
    def offers_toggle(node):
        try:
            action = node.queryAction()
        except NotImplementedError:
            return False
        return any(action.getName(i).lower() == "toggle" for i in range(action.nActions))

    def describe(self, path):
        return " > ".join("%s '%s'" % (role, name) for role, name in path)

    def walk(self, node, path=(), ancestors=()):
        """Checks `node` and what it shows; returns how many named nodes that is."""
        p = self.p
        try:
            role = node.getRole()
            name = (node.name or "").strip()
            states = node.getState()
            count = node.childCount
        except Exception:  # the node went away while we looked
            return 0
        if not states.contains(p.STATE_SHOWING):
            return 0
        path = path + ((node.getRoleName(), name),)
        self.counts["nodes"] += 1
        self.counts["named"] += bool(name)
        self.counts["headings"] += role == p.ROLE_HEADING
        where = self.describe(path)

        separator = role == p.ROLE_SEPARATOR or (node.description or "") == "separator"
        if role in self.interactive:
            self.counts["controls"] += 1
        if not name and not separator and (role in self.interactive or states.contains(p.STATE_FOCUSABLE)):
            self.faults.append("unnamed %s: %s" % (node.getRoleName(), where))
        if role in self.toggles:
            self.counts["toggles"] += 1
        elif role in self.buttons and self.offers_toggle(node) and not states.contains(p.STATE_CHECKABLE):
            self.faults.append("toggle that reads as a plain button: " + where)
        # A text view's viewport is Qt's own child; the text around it reads the content.
        in_text = bool(ancestors) and ancestors[-1][1] in (p.ROLE_TEXT, p.ROLE_ENTRY, p.ROLE_LABEL)
        if role in self.silent and count == 0 and not name and not in_text and not (node.description or "").strip():
            extents = node.queryComponent().getExtents(p.DESKTOP_COORDS)
            if extents.width * extents.height >= SILENT_AREA:
                self.faults.append("%dx%d px painted with nothing to read: %s"
                                   % (extents.width, extents.height, where))
        if states.contains(p.STATE_FOCUSED):
            self.focused.append((node, role, where, ancestors))

        ancestors = ancestors + ((node, role, states.contains(p.STATE_FOCUSED)),)
        named = 0
        for i in range(count):
            try:
                child = node.getChildAtIndex(i)
            except Exception:
                continue
            if child is not None:
                named += self.walk(child, path, ancestors)
        if role in self.containers and name:
            self.panes[name] = named
        return named + bool(name and role != p.ROLE_SCROLL_BAR)

    def check_focus(self):
        for node, role, where, ancestors in self.focused:
            if role in self.items:
                view = next((a for a in reversed(ancestors) if a[1] in self.views), None)
                if view is not None and not view[2]:
                    self.faults.append("item claims focus while its view does not have it: " + where)
        # Every focused node must lie on one chain from the window down.
        chains = [set(id(a[0]) for a in ancestors) | {id(node)} for node, _, _, ancestors in self.focused]
        for (node, _, where, _), chain in zip(self.focused, chains):
            if not all(id(node) in other or chain >= other for other in chains):
                self.faults.append("focus reported by unrelated nodes, among them: " + where)
                break


def find_app(pyatspi, pid, deadline):
    while time.monotonic() < deadline:
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            try:
                app = desktop.getChildAtIndex(i)
                if app is not None and app.get_process_id() == pid:
                    frames = [app.getChildAtIndex(j) for j in range(app.childCount)]
                    if any(f is not None and f.getState().contains(pyatspi.STATE_SHOWING) for f in frames):
                        return app
            except Exception:
                pass
        time.sleep(0.05)
    return None


def check_page(pyatspi, gallery, page_id, title):
    env = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    log = tempfile.TemporaryFile()
    proc = subprocess.Popen([gallery, "--page", page_id], env=env, stdin=subprocess.DEVNULL,
                            stdout=log, stderr=subprocess.STDOUT)
    try:
        app = find_app(pyatspi, proc.pid, time.monotonic() + APP_TIMEOUT)
        if app is None:
            log.seek(0)
            output = log.read().decode(errors="replace").strip()
            return ["the gallery did not show up on the accessibility bus within %d s%s"
                    % (APP_TIMEOUT, "; it wrote:\n" + output if output else "")], {}
        walker = Walker(pyatspi)
        walker.walk(app)
        walker.check_focus()
        if title not in walker.panes:
            walker.faults.append("no content area named after the page ('%s')" % title)
        elif walker.panes[title] == 0:
            walker.faults.append("the page's content has nothing named in it")
        return walker.faults, walker.counts
    finally:
        proc.terminate()
        try:
            proc.wait(timeout=5)
        except subprocess.TimeoutExpired:
            proc.kill()
            proc.wait()
        log.close()


def main():
    if len(sys.argv) < 2:
        print(__doc__)
        return 2
    gallery = os.path.abspath(sys.argv[1])
    launcher = first_existing(AT_SPI_LAUNCHERS)
    if not shutil.which("Xvfb"):
        skip("Xvfb is missing")
    if not shutil.which("dbus-daemon"):
        skip("dbus-daemon is missing")
    if not launcher:
        skip("at-spi-bus-launcher is missing")
    if importlib.util.find_spec("pyatspi") is None or importlib.util.find_spec("gi") is None:
        skip("pyatspi is missing for " + sys.executable)

    pages = list_pages(gallery)
    wanted = set(sys.argv[2:])
    if wanted:
        pages = [page for page in pages if page[0] in wanted]
    if not pages:
        print("FAIL: the gallery listed no pages")
        return 1

    session = Session()
    started = time.monotonic()
    try:
        session.open(launcher, first_existing(REGISTRYDS))
        import pyatspi  # only now: it connects to the buses in the environment

        failed = 0
        for page_id, title in pages:
            faults, counts = check_page(pyatspi, gallery, page_id, title)
            summary = ", ".join("%d %s" % (v, k) for k, v in counts.items())
            print("%-12s %s %s" % (page_id, "FAIL" if faults else "ok  ", summary))
            for fault in faults:
                print("    " + fault)
            failed += bool(faults)
            sys.stdout.flush()
    except RuntimeError as error:
        print("FAIL: " + str(error))
        return 1
    finally:
        session.close()
    print("%d of %d pages failed (%.1f s)" % (failed, len(pages), time.monotonic() - started))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
