"""Hooks of MkDocs. The documents have the same paths in the site as in the repository, so that their links are valid.
Each file of the examples has a page."""
import json
import re
from pathlib import Path

from markdown.blockprocessors import build_block_parser
from markdown.extensions import Extension
from mkdocs.structure.files import File, Files

ROOT = Path(__file__).parents[2]
LANGUAGES = {".lua": "lua", ".c": "c", ".cpp": "cpp", ".txt": "cmake", ".sh": "bash", ".yml": "yaml"}

names = []  # additional entries of the search index


class Source(File):
    """A source file as a page, named after the whole file name: host.c.html."""

    def is_documentation_page(self):
        return True

    def _get_stem(self):
        return Path(self.src_uri).name


class NestedLists(Extension):
    """Makes two spaces one level of a list, as in the documents. Must be first, since it replaces the block parser."""

    def extendMarkdown(self, md):
        usual, md.tab_length = md.tab_length, 2
        md.parser = build_block_parser(md)
        md.tab_length = usual


def on_config(config):
    config["markdown_extensions"].insert(0, NestedLists())


def on_files(files, config):
    """Replaces the files found by MkDocs. Keeps those of the theme, except source maps and stemmers."""
    kept = [f for f in files if f.src_uri.startswith("assets/") and not re.search(r"\.map$|/lunr/", f.src_uri)]

    def file(path, kind=File):
        return kind(path.relative_to(ROOT).as_posix(), str(ROOT), config["site_dir"], False)

    def section(folder):
        pages = [file(folder / "index.md"), *(file(p, Source) for p in sorted(folder.iterdir()) if p.is_file())]
        kept.extend(pages)
        return [f.src_uri for f in pages] + [{p.name: section(p)} for p in sorted(folder.iterdir()) if p.is_dir()]

    kept += [file(ROOT / "README.md"), file(ROOT / "types/README.md")]
    kept += [file(path) for path in sorted(ROOT.glob("docs/**/*")) if path.is_file()]

    config["nav"].append({"Examples": section(ROOT / "examples")})
    return Files(kept)


def listing(folder):
    """Returns a page that lists a folder of sources, with the first sentence of each."""
    lines = [f"# {folder.relative_to(ROOT).as_posix()}", ""]
    for path in sorted(folder.iterdir()):
        if path.is_dir():
            lines.append(f"- [{path.name}/]({path.name}/)")
        else:
            comment = re.match(r"((--|//|/\*|#) .*\n)*", path.read_text())[0]
            about = re.sub(r"^(--|//|/\*|#) | \*/$", "", comment, flags=re.MULTILINE)
            sentence = re.match(r".*?\.(?=\n|[ ][A-Z])|.*", about, re.DOTALL)[0]
            lines.append(f"- [{path.name}]({path.name}): {' '.join(sentence.split())}")
    return "\n".join(lines)


def on_page_read_source(page, config):
    path = Path(page.file.abs_src_path)
    if isinstance(page.file, Source):
        return f"# {path.name}\n\n```{LANGUAGES.get(path.suffix, 'text')}\n{path.read_text()}```\n"
    text = path.read_text() if path.exists() else listing(path.parent)
    text = re.sub(r"^<!--.*-->\n", "", text)
    text = text.replace("```lua signature", "```lua")

    def folder_page(link):
        folder = path.parent / link[1]
        if not folder.is_dir():
            return link[0]
        return f"]({link[1].rstrip('/')}/{'README.md' if (folder / 'README.md').exists() else 'index.md'})"

    return re.sub(r"\]\(([^)#:]+)\)", folder_page, text)


def on_page_content(html, page, config, files):
    """Adds an anchor and a search entry for each constant, field and function in the tables of the reference."""
    if not page.file.src_uri.startswith("docs/reference/"):
        return html
    section, accessors = "", False

    def mark(match):
        nonlocal section, accessors
        if match["section"] or match["heading"]:
            section, accessors = match["section"] or section, match["heading"] == "field"
            return match[0]
        about = re.sub("<.*?>", " ", match["rest"])

        def mark_name(code):
            name, place = code[1], f"{section}-{code[1]}"
            text = f"get_{name}, set_{name}: {about}" if accessors else about
            names.append({"location": f"{page.file.url}#{place}", "title": name, "text": text})
            return f'<code id="{place}">{name}</code>'

        return "<tr>\n<td>" + re.sub(r"<code>(\w+)</code>", mark_name, match["names"]) + match["rest"]

    return re.sub(r'<h[23] id="(?P<section>[^"]+)">|<thead>\s*<tr>\s*<th>(?P<heading>.*?)</th>|'
                  r"<tr>\s*<td>(?P<names><code>\w+</code>.*?)(?P<rest></td>.*?</tr>)", mark, html, flags=re.DOTALL)


def on_post_page(output, page, config):
    """Allows line breaks between the words of names, in tables and in tables of contents."""
    def mark(text):
        return re.sub(r"(?<=[a-z])(?=[A-Z])|(?<=\w_)(?=\w)|(?<=\()(?=\S)", "<wbr>", text[0])

    return re.sub(r'<td.*?</td>|<a [^>]*"md-nav__link".*?</a>', lambda part: re.sub(r">[^<]+", mark, part[0]), output,
                  flags=re.DOTALL)


def on_post_build(config):
    site = Path(config["site_dir"])
    index_file = site / "search/search_index.json"
    index = json.loads(index_file.read_text())
    index["docs"] += names
    for entry in index["docs"]:
        if entry["location"].startswith("examples/"):
            entry["text"] = ""  # otherwise uses of a name would rank before its description
    # As a script, because pages opened from a folder can load scripts but no data.
    (site / "search/search_index.js").write_text(f"receiveSearchIndex({json.dumps(index)});\n")
    # Only servers need these.
    for unused in (index_file, site / "404.html", site / "sitemap.xml", site / "sitemap.xml.gz"):
        unused.unlink()
    terms = Path("/usr/share/doc/mkdocs-material/copyright")
    if terms.exists():
        (site / "assets/licence.txt").write_text(terms.read_text())
