"""The shared libraries behind the module, loaded in the order that they need."""

import ctypes
import os
from ctypes import POINTER, c_char_p, c_uint32, c_uint64, c_void_p


class Finding(ctypes.Structure):
    _fields_ = [("offset", c_uint32), ("reason", c_uint32), ("path", c_char_p), ("sentence", c_char_p)]


class Explanation(ctypes.Structure):
    _fields_ = [
        ("verdict", c_uint32),
        ("message", c_void_p),
        ("consumed", c_uint32),
        ("token", c_uint32),
        ("faults", POINTER(Finding)),
        ("faultCount", c_uint32),
        ("notes", POINTER(Finding)),
        ("noteCount", c_uint32),
    ]


class Judgement(ctypes.Structure):
    _fields_ = [("verdict", c_uint32), ("message", c_void_p), ("consumed", c_uint32), ("isPlain", c_uint32)]


Sink = ctypes.CFUNCTYPE(None, c_void_p, c_void_p, c_uint32)
TokenHandler = ctypes.CFUNCTYPE(None, c_void_p, c_uint32, c_uint32)


class _Report(ctypes.Structure):
    _fields_ = [("handler", c_void_p), ("context", c_void_p)]


def _load(name, package):
    """Loads a library from the folders of TARN_LIBRARY_PATH, or where the system's loader finds it.
    libtarn looks for its host's functions among the symbols of all that is loaded globally, hence
    the order below and the mode."""
    folders = os.environ.get("TARN_LIBRARY_PATH", "").split(os.pathsep)
    paths = [os.path.join(folder, name) for folder in folders if folder]
    path = next(filter(os.path.exists, paths), name)
    try:
        return ctypes.CDLL(path, mode=ctypes.RTLD_GLOBAL)
    except OSError as error:
        raise ImportError(
            f"{name} cannot be loaded: {error}. Install the package {package}, or name the folders"
            " that hold the three tarn libraries in TARN_LIBRARY_PATH."
        ) from error


host = _load("libtarn_host.so.0", "libtarn-host0")
tarn = _load("libtarn.so.0", "libtarn0")
info = _load("libtarn_info.so.0", "libtarn-info0")

judge = info.tarnInfoJudge
judge.argtypes = [c_char_p, c_uint32]
judge.restype = Judgement
print_bytes = info.tarnInfoPrintBytes
print_bytes.argtypes = [c_char_p, c_uint32, POINTER(Judgement), c_uint32, c_uint32, Sink, c_void_p]
print_bytes.restype = c_uint32
build = info.tarnInfoBuildMsg
build.argtypes = [c_uint32, c_char_p, c_uint32, c_char_p]
build.restype = c_uint32
explain_bytes = info.tarnInfoExplainBytes
explain_bytes.argtypes = [c_char_p, c_uint32]
explain_bytes.restype = POINTER(Explanation)
explain_record = info.tarnInfoExplainRecord
explain_record.argtypes = [c_uint32, c_char_p, c_uint32]
explain_record.restype = POINTER(Explanation)
free_explanation = info.tarnInfoFreeExplanation
free_explanation.argtypes = [POINTER(Explanation)]
free_explanation.restype = None
reason_name = info.tarnInfoReasonName
reason_name.argtypes = [c_uint32]
reason_name.restype = c_char_p
live_blocks = host.tarnHostLiveBlocks
live_blocks.restype = c_uint64

JSON_FORMAT = 1
REFUSED = 2
VERDICTS = ("valid", "invalid", "refused")

# A failed build is told to the caller as an exception, so its debug token need not go to stderr.
_no_token = TokenHandler(lambda context, token, value: None)
host.tarnHostSetDebugTokenHandler.argtypes = [TokenHandler, c_void_p]
host.tarnHostSetDebugTokenHandler.restype = _Report
host.tarnHostSetDebugTokenHandler(_no_token, None)
