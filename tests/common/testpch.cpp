// Compiles the precompiled header that the tests share; nothing else.
