/* The product's name and version: the one place that feeds the version resource, the run log and
   the version box. Read by the resource compiler too, hence the macros. */
#pragma once

#define QM_PRODUCT_NAME "Quillmax"
#define QM_VERSION_TEXT "5.1 C3"
#define QM_VERSION_NUMBERS 5, 1, 3, 0
#define QM_PLUGIN_FILE "quillmax5.1C3.dll"

/* The build is named by the build system. */
#ifndef QM_BUILD_ID
#define QM_BUILD_ID "dev"
#endif
