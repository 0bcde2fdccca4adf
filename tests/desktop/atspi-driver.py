#!/usr/bin/python3
"""What a screen reader sees of one program, and its hands: run with the
program's process id and a command.

  tree                 one JSON object per line for every node of the
                       program's windows: depth, role, name, description,
                       whether it is showing, its actions
  press NAME [ROLE]    performs the first action of the first showing node
                       called NAME (of role ROLE); exit 1 when there is none

Exit 2 when the program is not on the accessibility bus (yet).
"""
import json
import sys

import pyatspi


def application(pid):
    for app in pyatspi.Registry.getDesktop(0):
        try:
            if app is not None and app.get_process_id() == pid:
                return app
        except Exception:
            continue
    return None


def walk(node, depth=0):
    yield depth, node
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child is not None:
            yield from walk(child, depth + 1)


def actions(node):
    try:
        a = node.queryAction()
        return [a.getName(i) for i in range(a.nActions)]
    except NotImplementedError:
        return []


def main():
    pid, command = int(sys.argv[1]), sys.argv[2]
    app = application(pid)
    if app is None:
        return 2
    if command == "tree":
        for depth, node in walk(app):
            showing = node.getState().contains(pyatspi.STATE_SHOWING)
            print(json.dumps({"depth": depth, "role": node.getRoleName(), "name": node.name,
                              "description": node.description, "showing": showing,
                              "actions": actions(node)}))
        return 0
    if command == "press":
        name = sys.argv[3]
        role = sys.argv[4] if len(sys.argv) > 4 else None
        for _, node in walk(app):
            if node.name != name or (role and node.getRoleName() != role):
                continue
            if not node.getState().contains(pyatspi.STATE_SHOWING) or not actions(node):
                continue
            node.queryAction().doAction(0)
            return 0
        return 1
    return 3


if __name__ == "__main__":
    sys.exit(main())
