"""What a screen reader is told of while something changes."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
import program_case  # noqa: E402, F401 - tells where the next module stands
from quillon_window import with_point  # noqa: E402

KINDS = ("object:property-change:accessible-name", "object:property-change:accessible-description")


class HeardChanges:
    """with HeardChanges() as heard: every new name and description that is announced from then on"""

    def __init__(self):
        self._texts = []
        self._listener = Atspi.EventListener.new(self._hear)

    def _hear(self, event):
        # The text itself is not in the event.
        event.source.clear_cache()
        text = event.source.get_name() if event.type == KINDS[0] else event.source.get_description()
        self._texts.append(with_point(text))

    def __enter__(self):
        for kind in KINDS:
            self._listener.register(kind)
        return self

    def __exit__(self, *_):
        for kind in KINDS:
            self._listener.deregister(kind)

    def forget(self):
        self.texts()
        self._texts.clear()

    def texts(self):
        """All there was until now."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self._texts
