# SPDX-License-Identifier: Apache-2.0
# Run by cpack before it packs: gives every file the time SOURCE_DATE_EPOCH, if that is set, so that
# equal files make equal packages.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
