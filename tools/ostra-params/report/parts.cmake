# The files of the page. Those of the script are one script in the page, in this order.
set(report_html report.html)
set(report_css report.css)
set(report_js
    model.js
    elements.js
    address.js
    texts.js
    search.js
    list.js
    schema.js
    picture.js
    card.js
    review.js
    overview.js
    print.js
    main.js
)
