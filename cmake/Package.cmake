# A Debian package of the programs: `cpack -G DEB` in the build folder makes it.

set(CPACK_PACKAGE_NAME recastor)
set(CPACK_PACKAGE_CONTACT "the recastor developers <recastor@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "rewrites TABLES and IGRAPH commands of syntax files")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "recastor converts the TABLES commands of a syntax file to CTABLES and its IGRAPH
commands to GGRAPH. recastor-tree does so for every file of a folder and reports on
each of them.")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_RESOURCE_FILE_README ${PROJECT_SOURCE_DIR}/README.md)

# The library and its headers are for developers, who build from the source.
set(CPACK_COMPONENTS_ALL program)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
include(CPack)
