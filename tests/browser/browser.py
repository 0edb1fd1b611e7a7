"""A headless Chromium, spoken to over a pair of pipes: no package and no port is needed."""
import base64
import json
import os
import subprocess
import tempfile

FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking",
         "--disable-component-update", "--disable-sync", "--remote-debugging-pipe"]


class Browser:
    def __init__(self, width=1280, height=900):
        self.profile = tempfile.TemporaryDirectory()
        to_read, self.to = os.pipe()
        self.answers, from_write = os.pipe()
        command = ["chromium", *FLAGS, f"--user-data-dir={self.profile.name}", f"--window-size={width},{height}",
                   "about:blank"]
        # The browser reads from descriptor 3 and writes to 4.
        shell = f'exec 8<&{to_read} 9>&{from_write} && exec "$@" 3<&8 4>&9 8<&- 9>&-'
        self.process = subprocess.Popen(["bash", "-c", shell, "bash", *command], pass_fds=[to_read, from_write],
                                        stderr=subprocess.DEVNULL)
        os.close(to_read)
        os.close(from_write)
        self.rest, self.last, self.session, self.events = b"", 0, None, []
        page = next(each for each in self.call("Target.getTargets")["targetInfos"] if each["type"] == "page")
        self.session = self.call("Target.attachToTarget", targetId=page["targetId"], flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(domain + ".enable")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self.session = None
            self.call("Browser.close")
            self.process.wait(20)
        except (EOFError, OSError, subprocess.TimeoutExpired):
            self.process.kill()
            self.process.wait()
        self.profile.cleanup()

    def read(self):
        while b"\0" not in self.rest:
            more = os.read(self.answers, 1 << 20)
            if not more:
                raise EOFError("the browser has gone")
            self.rest += more
        message, self.rest = self.rest.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        self.last += 1
        message = {"id": self.last, "method": method, "params": parameters}
        if self.session:
            message["sessionId"] = self.session
        data = json.dumps(message).encode() + b"\0"
        while data:
            data = data[os.write(self.to, data):]
        while True:
            answer = self.read()
            if answer.get("id") == self.last:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']}")
                return answer["result"]
            self.events.append(answer)

    def open(self, path):
        self.events = []
        self.call("Page.navigate", url="file://" + os.path.abspath(path))
        while not any(event["method"] == "Page.loadEventFired" for event in self.events):
            self.events.append(self.read())

    def js(self, expression):
        """The value of the expression, once everything that waits for the next frame has been done."""
        self.run("new Promise(go => requestAnimationFrame(() => requestAnimationFrame(go)))")
        return self.run(expression)

    def run(self, expression):
        result = self.call("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in result:
            raise RuntimeError(result["exceptionDetails"].get("exception", result["exceptionDetails"]))
        return result["result"].get("value")

    def press(self, key):
        text = {"text": key} if len(key) == 1 else {}
        self.call("Input.dispatchKeyEvent", type="keyDown", key=key, **text)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key)

    def media(self, **features):
        medium = features.pop("medium", "")  # the browser's own: paper when it prints
        self.call("Emulation.setEmulatedMedia", media=medium,
                  features=[{"name": name.replace("_", "-"), "value": value} for name, value in features.items()])

    def picture(self, path):
        with open(path, "wb") as file:
            file.write(base64.b64decode(self.call("Page.captureScreenshot", format="png")["data"]))

    def pdf(self, path):
        data = self.call("Page.printToPDF", preferCSSPageSize=True, printBackground=True)["data"]
        with open(path, "wb") as file:
            file.write(base64.b64decode(data))

    def complaints(self):
        """What the console says, what failed, and what the page asked the network for."""
        found = []
        for event in self.events:
            method, of = event.get("method"), event.get("params", {})
            if method in ("Runtime.exceptionThrown", "Log.entryAdded", "Runtime.consoleAPICalled"):
                found.append(json.dumps(of)[:400])
            elif method == "Network.requestWillBeSent" and not of["request"]["url"].startswith("file:"):
                found.append("asks for " + of["request"]["url"][:200])
        return found
