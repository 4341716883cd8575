"""What the package knows of C: the library, its functions and structs, and how it is called."""
