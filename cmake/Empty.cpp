// The only source of the targets that compile precompiled headers.
