"""Reads the includes against the picture of the layers in docs/architecture.md."""

import re

from tree import Finding

# The floors of the logic, the lowest first: a folder includes from its own and from those of the
# floors below it.
LOGIC_FLOORS = (
    ("core",),
    ("store",),
    ("tables",),
    ("patterns",),
    ("viewer", "audit", "hosts", "search", "analysis", "report"),
    ("schedule",),
    ("chrome",),
)
# Houses of several rooms, with the files that join these on top: the way to the hosts, and the
# simulated hosts.
_ROOMS = {
    ("adapters", "wsman"): (("basics",), ("sign_in", "http"), ("soap",), ("records",)),
    ("sample_network",): (("hosts",), ("wire",), ("faults",)),
}
LOGIC = tuple(folder for floor in LOGIC_FLOORS for folder in floor)


def _below(floors, folder):
    for number, floor in enumerate(floors):
        if folder in floor:
            return tuple(lower for floor in floors[:number] for lower in floor)
    return tuple(lower for floor in floors for lower in floor)


# What a file of a layer may include of the project, beside its own folder.
_MAY_INCLUDE = {
    "platform": (),
    **{folder: _below(LOGIC_FLOORS, folder) + ("platform",) for folder in LOGIC},
    "qt": ("core",),
    "curl": ("core",),
    "xml": ("core",),
    # A program of its own, of which the console knows the output alone.
    "browse_program": (),
    "adapters": ("core", "platform"),
    "ui": LOGIC + ("platform", "qt"),
    "app": LOGIC + ("platform", "qt", "adapters", "ui"),
}
# What several adapters over one library share.
_SHARED = {"qt": ("qt",), "curl": ("curl", "wsman", "browse"), "xml": ("wsman", "browse")}
# The headers of C++'s standard library, its C headers in their C++ names, have no ending.
_STANDARD = re.compile(r"(experimental/)?[a-z_0-9]+$")


def check_includes(tree):
    for path in tree.cpp_files("src"):
        layer = path.split("/")[1]
        if layer not in _MAY_INCLUDE:
            yield Finding(path, 1, "layer", f"src/{layer} stands in no layer")
            continue
        for line, opening, name in tree.cpp(path).includes:
            problem = _problem_of(path, layer, opening, name)
            if problem:
                yield Finding(path, line, "include", problem)
    for path in tree.cpp_files("sample_network"):
        for line, _, name in tree.cpp(path).includes:
            if _fits_rooms(path.split("/")[:-1], name.split("/")[:-1]) is False:
                yield Finding(path, line, "include", f"{path} may not include {name}")


def _fits_rooms(own, folders):
    """Whether one room of a house may include from another; None when they share no house."""
    for house, floors in _ROOMS.items():
        if tuple(own[: len(house)]) == tuple(folders[: len(house)]) == house:
            room, other = "/".join(own[len(house):]), "/".join(folders[len(house):])
            return other == room or other in _below(floors, room)
    return None


def _problem_of(path, layer, opening, name):
    if opening == "<":
        alone = layer in LOGIC or layer == "platform"
        if alone and not _STANDARD.match(name):
            return f"{layer}/ uses the standard library alone, not <{name}>"
        return None
    folders = name.split("/")[:-1]
    if not folders:
        moc = name.endswith(".moc")
        return None if moc else f'write "{name}" with its folders, from src/ on'
    # One adapter must not lean on another: each stands for one library.
    own = path.split("/")[1:-1] if layer == "adapters" else [layer]
    fits = _fits_rooms(own, folders)
    if fits is None:
        fits = folders[: len(own)] == own or folders[0] in _MAY_INCLUDE[layer]
        fits = fits or (own[0] == "adapters" and own[1] in _SHARED.get(folders[0], ()))
    return None if fits else f"{'/'.join(own)}/ may not include {name}"
