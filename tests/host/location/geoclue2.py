"""The desktop's location service as a template of python3-dbusmock, which has none of its own."""

import dbus

from dbusmock import MOCK_IFACE, get_object

BUS_NAME = "org.freedesktop.GeoClue2"
ROOT = "/org/freedesktop/GeoClue2"
MAIN_OBJ = ROOT + "/Manager"
MAIN_IFACE = BUS_NAME + ".Manager"
SYSTEM_BUS = True

CLIENT = ROOT + "/Client/1"
CLIENT_IFACE = BUS_NAME + ".Client"
LOCATION_IFACE = BUS_NAME + ".Location"


def load(mock, _parameters):
    """Called once: one client, to whom nothing is told before it starts."""
    mock.place, mock.told = None, 0
    mock.AddProperties(MAIN_IFACE, {"InUse": False, "AvailableAccuracyLevel": dbus.UInt32(8)})
    mock.AddMethods(MAIN_IFACE, [(name, "", "o", lambda _: dbus.ObjectPath(CLIENT))
                                 for name in ("GetClient", "CreateClient")])
    mock.AddObject(CLIENT, CLIENT_IFACE, {
        "Location": dbus.ObjectPath("/"),
        "DistanceThreshold": dbus.UInt32(0),
        "TimeThreshold": dbus.UInt32(0),
        "DesktopId": "",
        "RequestedAccuracyLevel": dbus.UInt32(0),
        "Active": False,
    }, [("Start", "", "", start), ("Stop", "", "", stop)])


def start(client):
    client.Set(CLIENT_IFACE, "Active", True)
    tell()


def stop(client):
    client.Set(CLIENT_IFACE, "Active", False)


@dbus.service.method(MOCK_IFACE, in_signature="dd", out_signature="")
def Move(self, latitude, longitude):
    """The device is there from now on."""
    self.place = (latitude, longitude)
    tell()


def tell():
    """Each position is an object of its own."""
    manager, client = get_object(MAIN_OBJ), get_object(CLIENT)
    if not client.Get(CLIENT_IFACE, "Active") or manager.place is None:
        return
    before = client.Get(CLIENT_IFACE, "Location")
    manager.told += 1
    path = dbus.ObjectPath(f"{ROOT}/Location/{manager.told}")
    manager.AddObject(path, LOCATION_IFACE, {
        "Latitude": manager.place[0],
        "Longitude": manager.place[1],
        "Accuracy": 100.0,
        "Altitude": -1.7976931348623157e308,  # none of these three is known
        "Speed": -1.0,
        "Heading": -1.0,
        "Description": "",
        "Timestamp": dbus.Struct((dbus.UInt64(1795000000), dbus.UInt64(0)), signature="tt"),
    }, [])
    client.Set(CLIENT_IFACE, "Location", path)
    client.EmitSignal(CLIENT_IFACE, "LocationUpdated", "oo", [before, path])
