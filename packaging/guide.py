#!/usr/bin/python3
"""Makes the installed guide, one HTML page, from its Markdown.

usage: guide.py GUIDE.md PAGE.html

The page shows the pictures of the folder `pictures` beside it and needs nothing from the network.
"""

import sys

import markdown
from markdown.extensions.toc import slugify_unicode

PAGE = """<!DOCTYPE html>
<html lang="tr">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<style>
body {{ max-width: 46em; margin: 2em auto; padding: 0 1em; background: #fffdf7; color: #2a2622;
       font: 100%/1.5 sans-serif; }}
h1, h2 {{ color: #1f5a60; line-height: 1.2; }}
a {{ color: #1f5a60; }}
img {{ max-width: 100%; }}
table {{ border-collapse: collapse; }}
th, td {{ border: 1px solid #c9b48c; padding: 0.3em 0.7em; text-align: left; }}
th {{ background: #efe3ca; }}
code, pre {{ background: #f7f0e1; }}
pre {{ padding: 0.7em; overflow-x: auto; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def main():
    source, page = sys.argv[1:]
    with open(source, encoding="utf-8") as file:
        text = file.read()
    title = text.split("\n", 1)[0].lstrip("# ")
    body = markdown.markdown(text, extensions=["tables", "fenced_code", "sane_lists", "toc"],
                             extension_configs={"toc": {"slugify": slugify_unicode}})
    with open(page, "w", encoding="utf-8") as file:
        file.write(PAGE.format(title=title, body=body))


if __name__ == "__main__":
    main()
