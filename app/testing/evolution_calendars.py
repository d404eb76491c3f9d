#!/usr/bin/python3
"""Evolution Data Server's own client library driven line by line, for the calendar tests.

Reads one JSON object per line on stdin and answers one JSON object per line on stdout:
{"ok": true, ...} or {"error": "..."}. Commands ("do"):
  source     uid, name, parent, kind ("events", "tasks" or "account"), color: adds a source
  enable     uid, enabled: switches a source on or off
  forget     uid: removes a source
  add        calendar, ics (one VEVENT or VTODO): adds a component; answers its uid
  add_many   calendar, ics (a list): adds them in one call
  modify     calendar, ics, mod ("this" or "all"): changes a component (or one occurrence)
  delete     calendar, uid, rid, mod: removes a component (or one occurrence)
  reconnect  (nothing): a new registry client, after the registry was restarted
Run with Debian's interpreter (/usr/bin/python3), on the bus the services are on.
"""
import json
import sys

import gi

gi.require_version("ECal", "2.0")
gi.require_version("EDataServer", "1.2")
gi.require_version("ICalGLib", "3.0")
from gi.repository import ECal, EDataServer, GLib, ICalGLib  # noqa: E402

registry = EDataServer.SourceRegistry.new_sync(None)
clients = {}

# Local calendars are connected at once; not waiting spares the timeout where the status lags.
NO_WAIT = 0xFFFFFFFF

MODS = {"this": ECal.ObjModType.THIS, "all": ECal.ObjModType.ALL}


def client_for(uid):
    if uid not in clients:
        source = registry.ref_source(uid)
        if source is None:
            raise LookupError("no source " + uid)
        kind = (ECal.ClientSourceType.TASKS
                if source.has_extension(EDataServer.SOURCE_EXTENSION_TASK_LIST)
                else ECal.ClientSourceType.EVENTS)
        clients[uid] = ECal.Client.connect_sync(source, kind, NO_WAIT, None)
    return clients[uid]


def component(text):
    return ICalGLib.Component.new_from_string(text)


def add_source(request):
    source = EDataServer.Source.new_with_uid(request["uid"], None)
    source.set_display_name(request["name"])
    source.set_parent(request.get("parent", ""))
    kind = request.get("kind", "events")
    if kind != "account":
        name = (EDataServer.SOURCE_EXTENSION_TASK_LIST if kind == "tasks"
                else EDataServer.SOURCE_EXTENSION_CALENDAR)
        extension = source.get_extension(name)
        extension.set_backend_name("local")
        if request.get("color"):
            extension.set_color(request["color"])
    registry.commit_source_sync(source, None)
    return {}


def enable(request):
    source = registry.ref_source(request["uid"])
    source.set_enabled(request["enabled"])
    source.write_sync(None)
    return {}


def forget(request):
    clients.pop(request["uid"], None)
    registry.ref_source(request["uid"]).remove_sync(None)
    return {}


def add(request):
    uid = client_for(request["calendar"]).create_object_sync(
        component(request["ics"]), ECal.OperationFlags.NONE, None)
    return {"uid": uid}


def add_many(request):
    components = [component(text) for text in request["ics"]]
    client_for(request["calendar"]).create_objects_sync(components, ECal.OperationFlags.NONE,
                                                         None)
    return {}


def modify(request):
    client_for(request["calendar"]).modify_object_sync(
        component(request["ics"]), MODS[request.get("mod", "all")], ECal.OperationFlags.NONE,
        None)
    return {}


def delete(request):
    client_for(request["calendar"]).remove_object_sync(
        request["uid"], request.get("rid") or None, MODS[request.get("mod", "all")],
        ECal.OperationFlags.NONE, None)
    return {}


def reconnect(_request):
    global registry
    clients.clear()
    registry = EDataServer.SourceRegistry.new_sync(None)
    return {}


COMMANDS = {"source": add_source, "enable": enable, "forget": forget, "add": add,
            "add_many": add_many, "modify": modify, "delete": delete, "reconnect": reconnect}


def main():
    print(json.dumps({"ok": True, "ready": True}), flush=True)
    for line in sys.stdin:
        if not line.strip():
            continue
        # What the registry told meanwhile (sources added, owners changed), before acting.
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            request = json.loads(line)
            answer = COMMANDS[request["do"]](request)
            answer["ok"] = True
        except Exception as error:  # every failure is the test's to read
            answer = {"error": "%s: %s" % (type(error).__name__, error)}
        print(json.dumps(answer), flush=True)


if __name__ == "__main__":
    main()
