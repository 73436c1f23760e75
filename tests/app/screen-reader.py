#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader finds in the running program and is told of it, through the accessibility bus.

Prints what it walked through; ends with 1 and a sentence for each thing that is missing.
"""
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

NAMED = {"push button", "check box", "radio button", "toggle button", "combo box", "slider", "spin button", "menu item",
         "menu", "check menu item", "table", "scroll bar", "tool bar", "image"}
TOOLS = 10
failures = []
told = []


def expect(condition, sentence):
    if not condition:
        failures.append(sentence)


def showing(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def walk(node, depth=0):
    yield node, depth
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield from walk(child, depth + 1)


def application():
    desktop = Atspi.get_desktop(0)
    for _ in range(100):
        for i in range(desktop.get_child_count()):
            node = desktop.get_child_at_index(i)
            if node is not None and "elpane" in (node.get_name() or ""):
                return node
        time.sleep(0.2)
    sys.exit("the program is not on the accessibility bus")


def press(node):
    action = node.get_action_iface()
    for i in range(action.get_n_actions()):
        if action.get_action_name(i) in ("Press", "Toggle"):
            return action.do_action(i)
    failures.append(f"{node.get_name()} cannot be pressed")


def listen_until(done, seconds=10):
    """Takes the bus's events until something holds."""
    context, end = GLib.MainContext.default(), time.time() + seconds
    while time.time() < end and not done():
        context.iteration(False)
        time.sleep(0.02)
    return done()


program = application()
for _ in range(50):
    nodes = list(walk(program))
    if any(n.get_role_name() == "image" and n.get_name() == "Canvas" for n, _ in nodes):
        break
    time.sleep(0.2)

for node, depth in nodes:
    role, name = node.get_role_name(), node.get_name()
    print("  " * depth + role, repr(name))
    if showing(node):
        expect(name or role not in NAMED, f"a {role} without a name at depth {depth}")
        expect("<" not in (node.get_description() or ""), f"the description of {name} is markup")

bars = [n for n, _ in nodes if n.get_role_name() == "tool bar" and n.get_name() == "Tools"]
expect(len(bars) == 1, "there is no tool bar of the tools")
tools = [n for n, _ in walk(bars[0]) if n.get_role_name() == "radio button"] if bars else []
expect(len(tools) == TOOLS, f"{len(tools)} tools are radio buttons")

pictures = [n for n, _ in nodes if n.get_role_name() == "image" and n.get_name() == "Canvas"]
expect(len(pictures) == 1, "the picture is no image")
if pictures and tools:
    picture = pictures[0]
    expect("by" in picture.get_description() and "Rectangle Selection" in picture.get_description(),
           f"the picture says of itself: {picture.get_description()}")
    listener = Atspi.EventListener.new(lambda event: told.append(picture.get_description()))
    listener.register("object:property-change:accessible-description")
    brush = next(n for n in tools if n.get_name() == "Brush")
    press(brush)
    expect(listen_until(lambda: "Brush" in picture.get_description()),
           f"the brush was chosen, the picture says: {picture.get_description()}")
    expect(brush.get_state_set().contains(Atspi.StateType.CHECKED), "the chosen tool is not checked")
    items = {n.get_name(): n for n, _ in nodes if n.get_role_name() == "menu item"}
    press(items["Select All"])
    expect(listen_until(lambda: "Done: Select All" in told), f"Select All was not told; told was: {told}")
    listen_until(lambda: False, 1)
    expect(told.count("Done: Select All") == 1, f"it is told once; told was: {told}")

print("\n".join(failures), file=sys.stderr)
sys.exit(1 if failures else 0)
