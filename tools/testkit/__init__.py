"""What the system tests and the demonstration share: throwaway volumes, marked data, and ways to run the program."""
