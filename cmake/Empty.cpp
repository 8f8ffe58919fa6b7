// SPDX-License-Identifier: Apache-2.0

// The only source of the targets that compile precompiled headers.
