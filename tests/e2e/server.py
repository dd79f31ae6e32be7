"""A web server that has a model."""

import http.server
import threading


class Server(http.server.ThreadingHTTPServer):
    """Serves the model; under /hang it sends the headers and then nothing until it is closed."""

    def __init__(self, model):
        self.model, self.hanging, self.ended = model, threading.Event(), threading.Event()
        super().__init__(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def url(self, path):
        return f"http://127.0.0.1:{self.server_port}{path}"


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802
        self.send_response(200)
        self.send_header("Content-Length", str(len(self.server.model)))
        self.end_headers()
        if self.path == "/hang":
            self.server.hanging.set()
            self.server.ended.wait()
        else:
            self.wfile.write(self.server.model)

    def log_message(self, *_):
        pass
