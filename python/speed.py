"""How long the module takes for a small message, the best of several runs."""

import time

import tarn

TURNS = 20000


def best_of(runs, call):
    def once():
        begun = time.process_time()
        for _ in range(TURNS):
            call()
        return (time.process_time() - begun) / TURNS * 1e6

    return min(once() for _ in range(runs))


values = {"message": "UeContextAccept", "Srnti": 1, "AcUeId": 7001}
data = tarn.encode(values)
print(f"decode {best_of(5, lambda: tarn.decode(data)):5.1f} us")
print(f"encode {best_of(5, lambda: tarn.encode(values)):5.1f} us")
