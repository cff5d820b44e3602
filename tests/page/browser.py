"""A headless Chromium, driven through a pipe by its DevTools protocol. Nothing but Python's own library is needed."""

import base64
import json
import os
import subprocess
import tempfile


class Browser:
    def __init__(self, scripts=True):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.scripts = scripts
        to_browser, self.output = os.pipe()
        self.input, from_browser = os.pipe()
        # The protocol is spoken on the descriptors 3 and 4; they are moved out of the way of each other first.
        command = [
            "sh", "-c", 'exec chromium "$@" 3<&%d 4>&%d' % (to_browser, from_browser), "sh",
            "--headless", "--remote-debugging-pipe", "--disable-gpu", "--hide-scrollbars", "--no-first-run",
            "--disable-background-networking", "--user-data-dir=" + self.profile.name,
        ] + (["--no-sandbox"] if os.getuid() == 0 else [])
        self.process = subprocess.Popen(
            command, pass_fds=(to_browser, from_browser), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        os.close(to_browser)
        os.close(from_browser)
        self.unread = b""
        self.last_id = 0
        self.events = []
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self.session = None
        self.session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(domain + ".enable")
        self.call("Emulation.setScriptExecutionDisabled", value=not scripts)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self.output)  # Chromium ends when the pipe does
        try:
            self.process.wait(20)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        os.close(self.input)
        self.profile.cleanup()

    def receive(self):
        while b"\0" not in self.unread:
            piece = os.read(self.input, 1 << 16)
            if not piece:
                raise EOFError("Chromium has ended")
            self.unread += piece
        message, self.unread = self.unread.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **params):
        self.last_id += 1
        message = {"id": self.last_id, "method": method, "params": params}
        if getattr(self, "session", None):
            message["sessionId"] = self.session
        os.write(self.output, json.dumps(message).encode() + b"\0")
        while True:
            answer = self.receive()
            if answer.get("id") == self.last_id:
                if "error" in answer:
                    raise RuntimeError(method + ": " + answer["error"]["message"])
                return answer["result"]
            self.events.append(answer)

    def wait_for(self, method):
        while not any(event.get("method") == method for event in self.events):
            self.events.append(self.receive())

    def open(self, path, fragment=""):
        self.events.clear()
        self.call("Page.navigate", url="about:blank")
        self.wait_for("Page.loadEventFired")
        self.events.clear()
        self.call("Page.navigate", url="file://" + os.path.abspath(path) + fragment)
        self.wait_for("Page.loadEventFired")

    def complaints(self):
        """What the browser has logged, and what the page has asked for besides itself."""
        self.call("Runtime.evaluate", expression="0")  # all events until now are here after this
        found = []
        for event in self.events:
            method, params = event.get("method"), event.get("params", {})
            if method == "Log.entryAdded":
                found.append(params["entry"]["text"])
            elif method == "Runtime.exceptionThrown":
                found.append(params["exceptionDetails"].get("exception", {}).get("description", "exception"))
            elif method == "Network.requestWillBeSent" and params["type"] != "Document":
                found.append("asked for " + params["request"]["url"])
        return found

    def value(self, expression):
        """Of an expression in the page; a promise is waited for. Also where the page itself may run no scripts."""
        result = self.call("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in result:
            raise RuntimeError(expression + ": " + str(result["exceptionDetails"].get("exception")))
        return result["result"].get("value")

    def press(self, key):
        for kind in ("keyDown", "keyUp"):
            extra = {"text": "\r"} if key == "Enter" and kind == "keyDown" else {}
            codes = {"Enter": 13, "Tab": 9, "ArrowDown": 40, "ArrowUp": 38}
            self.call("Input.dispatchKeyEvent", type=kind, key=key, code=key, windowsVirtualKeyCode=codes[key], **extra)

    def point_at(self, selector):
        x, y = self.value(
            "(e => { e.scrollIntoView({block: 'center'}); const r = e.getBoundingClientRect();"
            " return [r.x + r.width / 2, r.y + r.height / 2] })(document.querySelector(%s))" % json.dumps(selector)
        )
        self.call("Input.dispatchMouseEvent", type="mouseMoved", x=x, y=y)

    def size(self, width, height):
        self.call(
            "Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False
        )

    def theme(self, name):
        self.call("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": name}])

    def screenshot(self, path):
        data = self.call("Page.captureScreenshot", format="png")["data"]
        with open(path, "wb") as file:
            file.write(base64.b64decode(data))
