// Holds no test: its target compiles the headers of the tests' framework for all programs without Qt.
