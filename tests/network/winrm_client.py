#!/usr/bin/python3
"""The sample hosts before a client that knows nothing of this project: python3-winrm, with NTLM and
every message sealed, enumerates Win32_NTLogEvent.

usage: winrm_client.py BIN-DIRECTORY
Exit status 77 when it can't be done here.
"""

import os
import subprocess
import sys
import uuid
import xml.etree.ElementTree as ElementTree

try:
    from winrm.exceptions import WinRMError
    from winrm.protocol import Protocol
except ImportError as error:
    print(f"skipped: {error}")
    sys.exit(77)

RECORDS = {"KIOSK07": 0, "WEBSRV02": 1000, "BERLIN01": 1800}
DENYING = "VAULT01"
NAMES = {
    "s": "http://www.w3.org/2003/05/soap-envelope",
    "a": "http://schemas.xmlsoap.org/ws/2004/08/addressing",
    "n": "http://schemas.xmlsoap.org/ws/2004/09/enumeration",
    "w": "http://schemas.dmtf.org/wbem/wsman/1/wsman.xsd",
}
REQUEST = """<s:Envelope {names}><s:Header>
<a:To>{endpoint}</a:To>
<w:ResourceURI s:mustUnderstand="true">{wmi}/root/cimv2/*</w:ResourceURI>
<a:ReplyTo><a:Address>{anonymous}</a:Address></a:ReplyTo>
<a:Action s:mustUnderstand="true">{enumeration}/{action}</a:Action>
<w:MaxEnvelopeSize s:mustUnderstand="true">153600</w:MaxEnvelopeSize>
<a:MessageID>uuid:{id}</a:MessageID>
<w:OperationTimeout>PT20S</w:OperationTimeout>
</s:Header><s:Body>{body}</s:Body></s:Envelope>"""
ENUMERATE = """<n:Enumerate><w:OptimizeEnumeration/><w:MaxElements>500</w:MaxElements><w:Filter
Dialect="http://schemas.microsoft.com/wbem/wsman/1/WQL">SELECT * FROM Win32_NTLogEvent</w:Filter>
</n:Enumerate>"""
PULL = """<n:Pull><n:EnumerationContext>{}</n:EnumerationContext>
<n:MaxElements>500</n:MaxElements></n:Pull>"""


class Host:
    def __init__(self, place):
        self.endpoint = f"http://{place}/wsman"
        self.client = Protocol(
            self.endpoint, transport="ntlm", username="SAMPLE\\auditor",
            password="Kestrel-4711-over-the-weir", message_encryption="always")

    def ask(self, action, body):
        answer = self.client.send_message(REQUEST.format(
            names=" ".join(f'xmlns:{prefix}="{uri}"' for prefix, uri in NAMES.items()),
            endpoint=self.endpoint, wmi="http://schemas.microsoft.com/wbem/wsman/1/wmi",
            anonymous=NAMES["a"] + "/role/anonymous", enumeration=NAMES["n"], action=action,
            id=uuid.uuid4(), body=body))
        return ElementTree.fromstring(answer).find("s:Body", NAMES)[0]

    def records(self):
        answer = self.ask("Enumerate", ENUMERATE)
        records = list(answer.findall("w:Items/*", NAMES))
        while (context := answer.findtext("n:EnumerationContext", "", NAMES)):
            answer = self.ask("Pull", PULL.format(context))
            records += answer.findall("n:Items/*", NAMES)
        return records


def check(places):
    for name, count in RECORDS.items():
        records = Host(places[name]).records()
        print(f"{name}: {len(records)} records")
        assert len(records) == count
        assert all(record.tag.endswith("}Win32_NTLogEvent") for record in records)
    types = {record.findtext("{*}Type") for record in records}
    assert "Überwachung erfolgreich" in types, types
    try:
        Host(places[DENYING]).records()
    except WinRMError as error:
        assert "Access is denied" in str(error) and "w:AccessDenied" in str(error), error
    else:
        raise AssertionError("a fault went unnoticed")


def main():
    os.environ["no_proxy"] = "*"
    network = subprocess.Popen(
        [sys.argv[1] + "/tessarine-sample-network", "--listen-loopback", "0"],
        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    with network:
        places = {}
        while not {*RECORDS, DENYING} <= places.keys():
            name, place = network.stdout.readline().rstrip().split("=")
            places[name] = place
        try:
            check(places)
        finally:
            network.stdin.close()


main()
