// The one source of the targets that compile precompiled headers.
