"""A web server that sends whatever it is given, well formed or not."""

import http.server
import ssl
import subprocess
import tempfile
import threading

OK = "HTTP/1.1 200 OK\r\n"
MAKE_CERTIFICATE = "openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=elsewhere".split()


class Server(http.server.ThreadingHTTPServer):
    """Sends the model; under /hang a head and then nothing until `ended`."""

    def __init__(self, model=b""):
        super().__init__(("127.0.0.1", 0), Handler)
        self.hanging, self.ended = threading.Event(), threading.Event()
        self.serve(f"{OK}Content-Length: {len(model)}\r\n\r\n", [model])
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def hang(self):
        self.hanging.set()
        yield b""
        self.ended.wait()

    def serve(self, head, pieces):
        """A head and what follows, from now on; `asked` is set by a request, and `left` once the program hangs up early."""
        self.answer, self.asked, self.left = (head, pieces), threading.Event(), threading.Event()

    def url(self, path="/", scheme="http"):
        return f"{scheme}://127.0.0.1:{self.server_port}{path}"

    def encrypt(self):
        """From now on under a certificate of its own making."""
        with tempfile.TemporaryDirectory() as folder:
            pair = f"{folder}/certificate", f"{folder}/key"
            command = [*MAKE_CERTIFICATE, "-out", pair[0], "-keyout", pair[1]]
            subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(*pair)
        self.socket = context.wrap_socket(self.socket, server_side=True)


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802
        (head, pieces), left = self.server.answer, self.server.left
        self.server.asked.set()
        try:
            self.wfile.write(head.encode())
            for piece in self.server.hang() if self.path == "/hang" else pieces:
                self.wfile.write(piece)
        except OSError:
            left.set()

    def log_message(self, *_):
        pass
