"""What a test of an access point looks like."""

import pytest

import tarn


def request(**changes: object) -> tarn.Message:
    ies: dict[str, object] = {"Srnti": 1, "AcUeId": 7001, "LAC": "1001", "Imsi": b"001010123456789\0"}
    return tarn.decode(tarn.encode({"message": "AccessControlRequest", **ies, **changes}))


def test_imsi_travels_whole() -> None:
    assert bytes.fromhex(request()["Imsi"]).startswith(b"00101")


def test_response_goes_to_the_same_ue() -> None:
    asked = request(AcUeId=7002)
    answer = tarn.AccessControlResponse(
        Srnti=asked["Srnti"], AcUeId=asked["AcUeId"], Imsi=asked["Imsi"], LacMatch=1
    )
    assert tarn.decode(bytes(answer)) == answer


def test_a_short_imsi_is_refused() -> None:
    with pytest.raises(tarn.Refused, match="16"):
        request(Imsi="00")


def test_a_cut_message_says_where() -> None:
    data = bytes(tarn.UeContextAccept(Srnti=1, AcUeId=7001))
    with pytest.raises(tarn.Refused) as refused:
        tarn.decode(data[:-1])
    assert (refused.value.offset, refused.value.path) == (19, "AcUeId")
