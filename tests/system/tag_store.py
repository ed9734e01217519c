"""The tag store, seen from other programs."""

import contextlib
import os
import sqlite3

STORE_VARIABLE = "CALVERO_TAG_STORE"


class Tags:
    """The tag store, as another program of the suite uses it."""

    def __init__(self, path):
        self.path = path

    def read(self):
        if not os.path.exists(self.path):
            return {}
        with contextlib.closing(sqlite3.connect(self.path, timeout=30)) as connection:
            return dict(connection.execute("SELECT tag, value FROM tags"))

    def set(self, **values):
        with contextlib.closing(sqlite3.connect(self.path, timeout=30)) as connection, connection:
            connection.execute("PRAGMA application_id = 1330467923")
            connection.execute("PRAGMA user_version = 1")
            connection.execute("CREATE TABLE IF NOT EXISTS tags (tag TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL)"
                               " WITHOUT ROWID")
            connection.executemany("INSERT INTO tags VALUES (?, ?) ON CONFLICT (tag) DO UPDATE"
                                   " SET value = excluded.value", values.items())
