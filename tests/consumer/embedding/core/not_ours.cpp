#error "the host does not compile this, nor does the library"
