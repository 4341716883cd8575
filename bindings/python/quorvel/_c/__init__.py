"""What the package knows of C: the shared library, its functions and structs, and how it is called."""
