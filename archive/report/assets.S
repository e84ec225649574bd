/* The built scripts and the style sheet as data; the include path leads to them. */
    .section .rodata
    .macro asset name, file
    .global \name
    .global \name\()_end
\name:
    .incbin "\file"
\name\()_end:
    .byte 0
    .endm
    asset recastor_file_js, file.js
    asset recastor_index_js, index.js
    asset recastor_report_css, report.css
    .section .note.GNU-stack, "", %progbits
