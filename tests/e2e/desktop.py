"""A desktop for tests and pictures: X server, window manager, session bus, sound server, scratch HOME.

Needs Debian's python3-xlib and python3-dbus (run it with /usr/bin/python3).
"""
import os
import pathlib
import shutil
import subprocess
import tempfile
import time
from urllib.parse import quote

from Xlib import X, Xatom, display as xdisplay
from Xlib.protocol import event as xevent


def wait_for(condition, seconds=20, what="the condition"):
    """The condition's value as soon as it is true; an error after the limit."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise TimeoutError(f"waited {seconds} s in vain for {what}")


class Desktop:
    """Starts everything on entry and ends, by their ids, only what it started."""

    def __init__(self, width=1280, height=1024, scale=1):
        self.size = f"{width}x{height}x24"
        self.scale = scale
        self.processes = []
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="calderin-desktop-"))
        self.home = self.root / "home"
        self.env = dict(os.environ)

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, *unused):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        shutil.rmtree(self.root, ignore_errors=True)

    def start(self, *command, **keywords):
        process = subprocess.Popen([str(c) for c in command], env=self.env, **keywords)
        self.processes.append(process)
        return process

    def run(self, *command, check=True):
        return subprocess.run([str(c) for c in command], env=self.env, check=check,
                              capture_output=True, text=True, timeout=60).stdout

    def _start_server(self):
        """The number of a new display; nothing if another server took it in the same moment."""
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", write, "-screen", 0, self.size, "-nolisten", "tcp",
                   pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            return number.readline().strip()

    def _start(self):
        runtime = self.root / "run"
        for folder in (self.home / ".config/openbox", runtime):
            folder.mkdir(parents=True)
        runtime.chmod(0o700)
        self.env.update(HOME=str(self.home), XDG_RUNTIME_DIR=str(runtime), LC_ALL="C.UTF-8",
                        XDG_CONFIG_HOME=str(self.home / ".config"),
                        XDG_DATA_HOME=str(self.home / ".local/share"),
                        XDG_CACHE_HOME=str(self.home / ".cache"),
                        QT_SCALE_FACTOR=str(self.scale))
        for name in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "PULSE_SERVER", "SDL_AUDIODRIVER"):
            self.env.pop(name, None)
        self.env["DISPLAY"] = ":" + wait_for(self._start_server, what="a display")
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1",
                         stdout=subprocess.PIPE, text=True)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.start("openbox", stderr=subprocess.DEVNULL)
        wait_for(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK",
                                                   check=False),
                 what="the window manager")
        socket = runtime / "sound"
        self.start("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                   "-L", f"module-native-protocol-unix socket={socket} auth-anonymous=1",
                   "-L", "module-null-sink sink_name=out norewinds=1",
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.env["PULSE_SERVER"] = f"unix:{socket}"
        self.env["SDL_AUDIODRIVER"] = "pulseaudio"
        wait_for(socket.exists, what="the sound server")

    # The window system

    def window(self, title, seconds=20):
        """The id of a visible window of exactly this title."""
        def find():
            found = self.run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$", check=False)
            return found.split()[-1:] or None
        return int(wait_for(find, seconds, f"the window {title}")[0])

    def geometry(self, window):
        """Left, top, width and height on the screen, without the window manager's frame."""
        display = xdisplay.Display(self.env["DISPLAY"])
        try:
            target = display.create_resource_object("window", int(window))
            place = display.screen().root.translate_coords(target, 0, 0)
            size = target.get_geometry()
            return place.x, place.y, size.width, size.height
        finally:
            display.close()

    def click(self, window, x, y, button=1):
        """Clicks at a place of a window; negative numbers count from its right and lower edge."""
        left, top, width, height = self.geometry(window)
        x = left + (x if x >= 0 else width + x)
        y = top + (y if y >= 0 else height + y)
        self.run("xdotool", "mousemove", x, y)
        time.sleep(0.2)
        self.run("xdotool", "click", button)

    def close_window(self, window):
        """What the cross in the window's frame does."""
        display = xdisplay.Display(self.env["DISPLAY"])
        message = xevent.ClientMessage(window=int(window), data=(32, [X.CurrentTime, 2, 0, 0, 0]),
                                       client_type=display.intern_atom("_NET_CLOSE_WINDOW"))
        display.screen().root.send_event(
            message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        display.sync()
        display.close()

    def close_until(self, window, condition, what):
        """Closes again where the first attempt came too early, as a user does."""
        for _ in range(10):
            self.close_window(window)
            try:
                return wait_for(condition, 4, what)
            except TimeoutError:
                pass
        raise TimeoutError(f"closed the window in vain for {what}")

    def convert(self, window):
        """Starts a run, again where a drop was still on its way; the id of the run's window."""
        for _ in range(5):
            self.run("xdotool", "windowactivate", "--sync", window)
            self.key("ctrl+Return")
            try:
                return self.window("Calderin M4A Batch Process", 4)
            except TimeoutError:
                pass
        raise TimeoutError("pressed Convert in vain")

    def key(self, *keys):
        self.run("xdotool", "key", *keys)

    def picture(self, path, window="root"):
        """A PNG of a window as it is seen, with what lies over it."""
        if window == "root":
            self.run("import", "-window", "root", path)
        else:
            x, y, width, height = self.geometry(window)
            self.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", path)

    def drop(self, window, paths, x=None, y=None):
        """A real drop of files and folders on a window, by the XDND protocol."""
        uris = "".join(f"file://{quote(str(p))}\r\n" for p in paths).encode()
        left, top, width, height = self.geometry(window)
        XdndSource(self.env["DISPLAY"], uris).drop(
            window, left + (width // 2 if x is None else x), top + (height // 2 if y is None else y))


class XdndSource:
    """The source's side of a drag, without the dragging hand."""

    def __init__(self, display_name, uris):
        self.display = xdisplay.Display(display_name)
        self.uris = uris
        self.atoms = {}
        screen = self.display.screen()
        self.window = screen.root.create_window(0, 0, 1, 1, 0, screen.root_depth,
                                                event_mask=X.PropertyChangeMask)

    def atom(self, name):
        if name not in self.atoms:
            self.atoms[name] = self.display.intern_atom(name)
        return self.atoms[name]

    def drop(self, target_id, x, y):
        target = self.aware(self.display.create_resource_object("window", target_id))
        self.window.set_selection_owner(self.atom("XdndSelection"), X.CurrentTime)
        self.send(target, "XdndEnter", [5 << 24, self.atom("text/uri-list"), 0, 0])
        for step in (4, 0):
            self.send(target, "XdndPosition",
                      [0, (x << 16) | (y + step), X.CurrentTime, self.atom("XdndActionCopy")])
            if not self.wait("XdndStatus").data[1][1] & 1:
                raise RuntimeError("the window doesn't accept the drop")
        self.send(target, "XdndDrop", [0, X.CurrentTime, 0, 0])
        self.wait("XdndFinished")
        self.display.close()

    def aware(self, window):
        """The window itself or the child of a frame that speaks XDND."""
        if window.get_full_property(self.atom("XdndAware"), X.AnyPropertyType):
            return window
        for child in window.query_tree().children:
            found = self.aware(child)
            if found:
                return found
        return None

    def send(self, target, message, rest):
        target.send_event(xevent.ClientMessage(window=target, client_type=self.atom(message),
                                               data=(32, [self.window.id] + rest)))
        self.display.flush()

    def wait(self, message, seconds=10):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if not self.display.pending_events():
                time.sleep(0.01)
                continue
            event = self.display.next_event()
            if event.type == X.SelectionRequest:
                self.serve(event)
            elif event.type == X.ClientMessage and event.client_type == self.atom(message):
                return event
        raise TimeoutError(f"no {message} from the window")

    def serve(self, request):
        target, kind = (self.uris, request.target)
        if request.target == self.atom("TARGETS"):
            request.requestor.change_property(request.property, Xatom.ATOM, 32,
                                              [self.atom("text/uri-list")])
        else:
            request.requestor.change_property(request.property, kind, 8, target)
        request.requestor.send_event(xevent.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection,
            target=request.target, property=request.property))
        self.display.flush()
