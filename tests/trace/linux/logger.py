"""A logger for the trace channel, written from docs/formats.md alone."""

import contextlib, fcntl, os, secrets, selectors, signal, socket, stat, struct, sys

PACKET = struct.Struct("<IIQQ")     # message, 0, wParam, lParam
LINE = struct.Struct("<IIBB")       # colour of the text, of the background, flag, level
# A message is one line of output: what would break or spoil the line is escaped, tabs are not.
ESCAPES = {n: f"\\u{n:04x}" for n in (*range(9), *range(10, 32), *range(127, 160), 0x2028, 0x2029)}


def fnv1a(data, value, prime, bits):
    for byte in data:
        value = (value ^ byte) * prime % (1 << bits)
    return value


def message_number(name):
    number = fnv1a(name.upper().encode(), 0x811C9DC5, 0x01000193, 32)
    return number if number >= 0xC000 else number + 0xC000


def check_own(path, opened, is_kind):
    status = os.fstat(opened)
    if not is_kind(status.st_mode) or status.st_uid != os.geteuid() or status.st_mode & 0o077:
        raise PermissionError(f"{path} is not of the right kind, the user's own and closed to others")


def is_own_folder(path):
    with contextlib.suppress(OSError):
        status = os.stat(path)
        return path.startswith("/") and stat.S_ISDIR(status.st_mode) and status.st_uid == os.geteuid()
    return False


def folder_path():
    variables = os.environ if (os.getuid(), os.getgid()) == (os.geteuid(), os.getegid()) else {}
    runtime, temporary = (variables.get(name, "").rstrip("/") for name in ("XDG_RUNTIME_DIR", "TMPDIR"))
    if is_own_folder(runtime):
        return f"{runtime}/tessaly"
    return f"{temporary if temporary.startswith('/') else '/tmp'}/tessaly-{os.geteuid()}"


def open_folder(path):
    with contextlib.suppress(FileExistsError):
        os.mkdir(path)
    folder = os.open(path, os.O_RDONLY | os.O_DIRECTORY | os.O_NOFOLLOW)
    check_own(path, folder, stat.S_ISDIR)
    return folder


def make_window(folder, path, cleanup):     # the clean-up runs backwards
    name = f"{1 + secrets.randbelow(0x7FFFFFFF):08x}"
    title = os.open(name + ".title", os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o600, dir_fd=folder)
    cleanup.callback(os.close, title)
    cleanup.callback(os.unlink, name + ".title", dir_fd=folder)
    os.write(title, b"ZPLogger server")
    address = os.fsencode(f"{path}/{name}.socket")
    if len(address) > 107:          # all that a socket's address can hold
        address = f"/proc/self/fd/{folder}/{name}.socket"
    window = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
    window.bind(address)
    cleanup.callback(os.unlink, name + ".socket", dir_fd=folder)
    cleanup.callback(window.close)
    window.listen()
    os.utime(title)
    fcntl.flock(title, fcntl.LOCK_EX)
    return window


def block_prefix(path):
    number = fnv1a(os.fsencode(path), 0xCBF29CE484222325, 0x100000001B3, 64)
    return f"/dev/shm/tessaly-{os.geteuid()}-{number:016x}-ZPLoggerMappedFile"


def open_without_waiting(path, flags):
    return os.open(path, flags | os.O_NOFOLLOW | os.O_NONBLOCK)


def read_block(path):   # read, not mapped: somebody may shorten the block or write to it meanwhile
    with open(path, "rb", buffering=0, opener=open_without_waiting) as file:
        check_own(path, file.fileno(), stat.S_ISREG)
        fcntl.flock(file, fcntl.LOCK_SH)
        return file.read(5000)


def take_text(block, offset, codec):
    start = offset + 4
    end = start + int.from_bytes(block[offset:start], "little")
    if end > len(block):
        raise ValueError(f"a text of {end - start} bytes at {start} does not fit into {len(block)}")
    return block[start:end].decode(codec, "replace").translate(ESCAPES), end


def client_line(block, codec):
    name, offset = take_text(block, 0, codec)
    log, offset = take_text(block, offset, codec)
    backup, _ = take_text(block, offset, codec)
    return f"add {name}|{log}|{backup}"


def trace_line(block, codec):
    text, _ = take_text(block, LINE.size, codec)
    fore, back, flag, level = LINE.unpack_from(block)
    return f"trace {level} {flag} {fore:08X} {back:08X} {text}"


LINES = {message_number("ZPLoggerWindowMsgAddClient"): client_line,
         message_number("ZPLoggerWindowMsgAddTrace"): trace_line}
DELETE = message_number("ZPLoggerWindowMsgDeleteClient")


def describe(message, client, prefix, codec):
    if message == DELETE:
        return "delete"
    try:
        return LINES[message](read_block(f"{prefix}{client:X}"), codec)
    except (OSError, ValueError) as error:
        return f"fault {error}"


def answer(connection, prefix, codec):
    packet = b""
    with contextlib.suppress(OSError):
        packet = connection.recv(PACKET.size + 1, socket.MSG_DONTWAIT)
    if len(packet) != PACKET.size:
        return False
    message, _, _, client = PACKET.unpack(packet)
    if message == DELETE or message in LINES:
        print(describe(message, client & 0xFFFFFFFF, prefix, codec), flush=True)
    with contextlib.suppress(OSError):
        connection.send(bytes(8), socket.MSG_DONTWAIT)
    return True


def serve(window, stop, prefix, codec):
    selector = selectors.PollSelector()     # unlike epoll it also takes a file as standard input
    for source in (window, stop, sys.stdin):
        selector.register(source, selectors.EVENT_READ)
    while True:
        for key, _ in selector.select():
            source = key.fileobj
            if source == stop or source is sys.stdin and not os.read(key.fd, 4096):
                return
            if source is window:
                selector.register(window.accept()[0], selectors.EVENT_READ)
            elif source is not sys.stdin and not answer(source, prefix, codec):
                selector.unregister(source)
                source.close()


def main(codec="cp1252"):
    b"?".decode(codec)              # an unknown codec is found out here
    os.umask(0o077)
    sys.stdout.reconfigure(encoding="utf-8", errors="backslashreplace")
    stop, wake = os.pipe2(os.O_NONBLOCK | os.O_CLOEXEC)
    path = folder_path()
    folder = open_folder(path)
    fcntl.flock(folder, fcntl.LOCK_SH)
    signal.set_wakeup_fd(wake)
    signal.signal(signal.SIGTERM, lambda *_: None)
    with contextlib.ExitStack() as cleanup:
        window = make_window(folder, path, cleanup)
        fcntl.flock(folder, fcntl.LOCK_UN)
        print("ready", flush=True)
        serve(window, stop, block_prefix(path), codec)


if __name__ == "__main__":
    try:
        main(*sys.argv[1:])
    except (OSError, LookupError, ValueError) as error:
        sys.exit(f"logger: {error}")
