"""Reads the includes against the picture of the layers in docs/architecture.md."""

import re

from tree import Finding

LOGIC = ("core", "store", "patterns", "audit", "viewer", "hosts", "analysis", "schedule", "report",
         "chrome")
_ALL = LOGIC + ("platform", "adapters", "ui", "app")
# What a file of a layer may include of the project, beside its own folder.
_MAY_INCLUDE = {
    "platform": (),
    **{folder: LOGIC + ("platform",) for folder in LOGIC},
    "adapters": ("core", "platform"),
    "ui": LOGIC + ("platform",),
    "app": _ALL,
}
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
    if folders[: len(own)] == own or folders[0] in _MAY_INCLUDE[layer]:
        return None
    return f"{layer}/ may not include {name}"
