# To be set by a maker who ships the program. The defaults are in a reserved domain, where nobody can be reached.

set(VANTOR_PUBLISHER "Orbel" CACHE STRING "The maker's name")
set(VANTOR_DESCRIPTION "Opens programs, files, folders and web addresses by short codes."
    CACHE STRING "The product in one sentence")
set(VANTOR_MAKER_SITE "http://www.orbel.example" CACHE STRING "The maker's web site")
set(VANTOR_DOWNLOADS "https://www.orbel.example/download" CACHE STRING "Where packages are published")
set(VANTOR_CONTACT_ADDRESS "contact@orbel.example" CACHE STRING "Mail address for anything")
set(VANTOR_BUG_REPORT_ADDRESS "bugs@orbel.example" CACHE STRING "Mail address for bug reports")
set(VANTOR_SUGGESTIONS_ADDRESS "suggestions@orbel.example" CACHE STRING "Mail address for suggestions")
set(VANTOR_SUPPORT_ADDRESS "support@orbel.example" CACHE STRING "Mail address for support")

configure_file(cmake/Product.h.in generated/product/Product.h @ONLY)
configure_file(cmake/Product.rc.h.in generated/product/Product.rc.h @ONLY)
configure_file(src/win32/Vantor.manifest.in generated/product/Vantor.manifest @ONLY)
