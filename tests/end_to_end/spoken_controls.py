"""What takes the keyboard in a window, and what a screen reader calls it."""

import collections
from typing import NamedTuple

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

# Menus have the keyboard as a whole, so Qt does not call their entries focusable.
ENTRIES_OF_MENUS = (Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM)
ENTRIES = (*ENTRIES_OF_MENUS, Atspi.Role.LIST_ITEM, Atspi.Role.TABLE_CELL)


class Control(NamedTuple):
    role: str
    label: str
    is_entry: bool


def everything_below(element):
    """All elements below one, the entries of lists and tables included."""
    for index in range(element.get_child_count()):
        child = element.get_child_at_index(index)
        if child is not None:
            yield child
            yield from everything_below(child)


def label_of(element):
    """The name of a list box is its text once something is chosen, so what labels it has to be another element."""
    if element.get_role() != Atspi.Role.COMBO_BOX:
        return element.get_name() or ""
    return " ".join(
        relation.get_target(index).get_name()
        for relation in element.get_relation_set()
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
        for index in range(relation.get_n_targets()))


def controls_of(window):
    found = []
    for element in everything_below(window):
        element.clear_cache()
        role = element.get_role()
        if role in ENTRIES_OF_MENUS or element.get_state_set().contains(Atspi.StateType.FOCUSABLE):
            found.append(Control(element.get_role_name(), label_of(element), role in ENTRIES))
    return found


def unlabelled(controls):
    """Those that have no label, or only one that another of their kind has as well: the title of their frame, say."""
    parts = [control for control in controls if not control.is_entry and control.role != "combo box"]
    uses = collections.Counter(parts)
    return [control for control in controls if not control.label.strip() or uses[control] > 1]


def labels_of(window):
    """The texts that a screen reader finds in a window, without those that take the keyboard."""
    return [element.get_name() for element in everything_below(window) if element.get_role() == Atspi.Role.LABEL]
