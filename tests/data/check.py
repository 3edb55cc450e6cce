#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the settings and language files that ship with the library."""

import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree as ET

DATA = pathlib.Path(__file__).resolve().parents[2] / "data"
CONFIG = DATA / "ZNCoreEditor.xml"
SYNTAX = DATA / "Syntax"

LEXERS = """CONTAINER NULL SYBASE MSSQL DB2SQL ORACLESQL CPP HTML XML SQL DB2OS390SQL VB VBSCRIPT BATCH
MYSQL INTERBASE SQLAZURE SYBASE_IQ DIFF PROPERTIES MAKEFILE ERRORLIST LATEX ASP PHP PERL CSS
CPPNOCASE USER PHPSCRIPT""".split()
SQL_LEXERS = "SYBASE MSSQL DB2SQL ORACLESQL SQL MYSQL INTERBASE SQLAZURE SYBASE_IQ".split()

# The keyword sets that a lexer looks up in lower case; every other set keeps its letters.
LOWER_CASE = {name: set(range(8)) for name in SQL_LEXERS + ["BATCH", "CSS", "VB", "PROPERTIES"]}
LOWER_CASE.update(HTML={0, 2, 4}, PHP={0, 2, 4, 6})

BOOL, INT = re.compile(r"[01]$"), re.compile(r"\d+$")
SECTIONS = {
    "View": {"WhiteSpace": BOOL, "EOL": BOOL, "WordWrap": BOOL, "TabWidth": INT,
             "TabsToSpaces": BOOL},
    "CodeHighlight": {"SyntaxHighlighting": BOOL, "BraceMatching": BOOL},
    "AutoComp": {"AutoCompletion": BOOL, "CodeCompletion": BOOL, "AutoCompKey": BOOL},
    "OnSave": {"EnsureFinalNewLine": BOOL, "ConvertTabsToSpaces": BOOL,
               "TrimTrailingSpaces": BOOL},
    "Indent": {"Indent": BOOL, "IndentSize": INT, "AutoIndent": re.compile(r"[012]$"),
               "IndentGuides": BOOL},
    "Margins": {"LineNumbers": BOOL, "BookMark": BOOL, "Fold": BOOL},
    "LanguageDefines": {"Braces": re.compile(r"(\(\)|\[\]|\{\}|<>)+$"),
                        "WordCharacters": re.compile(r"\S+$")},
    "StyleInformation": {"StyleBits": re.compile(r"7$"), "StyleMax": re.compile(r"127$")},
}
CONFIG_SECTIONS = {
    "General": "CheckFileModification",
    "Editor": "CaretColor SelectionForeColor SelectionBackColor HighlightCurrentLine "
              "HighlightCurrentLineColor RightEdge RightEdgeColumn RightEdgeColor",
    "InsertText": "Type Position FirstNumber Length Step Separator InsertWords",
}
SHARED_SQL = """select insert update delete from where join on group by order having create drop
alter table view index union all and or not in exists between like null""".split()

# The words of each dialect as its documentation or its server lists them.
WORD_LISTS = pathlib.Path(__file__).resolve().parent / "words"
README = DATA.parent / "README.md"
NUMBERS = "zero one two three four five six seven eight nine ten eleven twelve".split()


def listed_words(path):
    return {word for line in path.read_text().splitlines() if not line.startswith("#")
            for word in line.split()}


def lexer_of(root):
    return root.findtext("Lexer/Name").removeprefix("ZNEDITLEX_")


def words_of(keywords):
    return [word.text for word in keywords.findall("Word")]


def luminance(colour):
    channels = [int(colour[i:i + 2], 16) / 255 for i in (0, 2, 4)]
    linear = [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(first, second):
    light, dark = sorted((luminance(first), luminance(second)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


def hex_of(decimal):
    """The settings file spells colours as one decimal number with red in the low byte."""
    value = int(decimal)
    return f"{value & 255:02X}{value >> 8 & 255:02X}{value >> 16 & 255:02X}"


def keyword_faults(root):
    """What is wrong with the keyword sets of a language."""
    faults, seen = [], set()
    lower = LOWER_CASE.get(lexer_of(root), set())
    for keywords in root.iter("Keywords"):
        number, words = keywords.get("set", ""), words_of(keywords)
        if not re.fullmatch("[0-7]", number) or number in seen:
            faults.append(f"set number {number!r}")
            continue
        seen.add(number)
        if not keywords.get("description"):
            faults.append(f"set {number} has no description")
        if not words:
            faults.append(f"set {number} is empty")
            continue
        if any(child.tag != "Word" for child in keywords):
            faults.append(f"set {number} holds more than words")
        faults += [f"{word} twice in set {number}" for word in set(words)
                   if words.count(word) > 1]
        faults += [f"{word!r} in set {number} is not one word" for word in words
                   if not re.fullmatch(r"[!-~]+", word or "") or re.search("[<>&]", word)]
        # The preferences split a set at blanks and lose a last word of one character.
        if len(words[-1] or "") < 2:
            faults.append(f"set {number} ends in a single character")
        if int(number) in lower:
            faults += [f"{word} in set {number} is not in lower case" for word in words
                       if word != word.lower()]
    return faults


def style_faults(root, current_line):
    """What is wrong with the style table: every number is applied, so every one needs colours."""
    faults = []
    styles = root.findall("StyleInformation/Style")
    numbers = [style.get("number") for style in styles]
    if sorted(numbers) != sorted(str(n) for n in range(128)):
        faults.append("the style numbers are not 0 to 127, each once")
    for style in styles:
        number = style.get("number")
        colours = [style.findtext("Color/Foreground", ""), style.findtext("Color/Background", "")]
        if not all(re.fullmatch("[0-9A-F]{6}", colour) for colour in colours):
            faults.append(f"style {number} has no two colours")
            continue
        papers = [colours[1]] + ([current_line] if colours[1] == "FFFFFF" else [])
        faults += [f"style {number}: {colours[0]} on {paper}" for paper in papers
                   if contrast(colours[0], paper) < 4.5]
        # The first Name below a style is the style's, whatever element it stands in.
        if style.find("Font") is None:
            faults.append(f"style {number} has no font to set")
        elif style[0].tag != "Name":
            faults.append(f"style {number} does not begin with its name")
    return faults


def section_faults(root):
    """What a reader that takes the first element of a name would not find."""
    faults = []
    for section, keys in SECTIONS.items():
        first = next(root.iter(section), None)
        if first is None or first not in list(root):
            faults.append(f"no section {section}")
            continue
        for key, form in keys.items():
            text = first.findtext(key, "")
            if not form.match(text):
                faults.append(f"{section}/{key} is {text!r}")
    return faults


def comment_faults(root):
    faults = []
    for name, limit in (("SingleLineComment", 2), ("BlockComment", 2)):
        element = root.find(f"LanguageDefines/{name}")
        if element is None:
            continue
        pieces = (element.text or "").split("|")
        # The split that reads these runs over from the third piece on.
        if name == "SingleLineComment" and element.text is None:
            pieces = []  # said to be there, so that block comments are taken out
        if len(pieces) > limit or not all(pieces) or (name == "BlockComment" and
                                                      len(pieces) != 2):
            faults.append(f"{name} is {element.text!r}")
        elif name == "BlockComment" and len(pieces[0]) != len(pieces[1]):
            faults.append("the end of a block comment is not found: it is not as long as the start")
        if element.get("default") != "0":
            faults.append(f"{name} starts with no alternative")
    if root.find("LanguageDefines/BlockComment") is not None and \
            root.find("LanguageDefines/SingleLineComment") is None:
        faults.append("block comments are not taken out without a default of line comments")
    return faults


def look_faults(root):
    """Styles that differ in bold alone, which is not seen in every font: pairs of names."""
    looks = {}
    for style in root.findall("StyleInformation/Style"):
        font = style.find("Font")
        look = (style.findtext("Color/Foreground"), style.findtext("Color/Background"),
                font.findtext("Italic"), font.findtext("Underline"))
        if style[0].text:
            looks.setdefault(look, {})[font.findtext("Bold")] = style[0].text
    return [" and ".join(sorted(names.values())) for names in looks.values() if len(names) > 1]


class ShippedFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.config = ET.parse(CONFIG).getroot()
        cls.languages = {path.stem: ET.parse(path).getroot() for path in SYNTAX.glob("*.xml")}
        cls.current_line = hex_of(cls.config.findtext("Editor/HighlightCurrentLineColor"))

    def each(self, faults_of):
        self.assertGreaterEqual(len(self.languages), 26)
        for name, root in self.languages.items():
            with self.subTest(language=name):
                self.assertEqual(faults_of(root), [])

    def test_files_are_plain_ascii_without_entities(self):
        for path in [CONFIG, *SYNTAX.glob("*.xml")]:
            with self.subTest(file=path.name):
                text = path.read_bytes().decode("ascii")  # files are read byte by byte
                self.assertNotRegex(re.sub(r"<!\[CDATA\[.*?\]\]>", "", text), "&")

    def test_configuration_has_every_setting(self):
        for section, keys in CONFIG_SECTIONS.items():
            for key in keys.split():
                with self.subTest(section=section, key=key):
                    self.assertEqual(len(list(self.config.iter(key))), 1)
                    self.assertIsNotNone(self.config.find(f"{section}/{key}"))
        for name in ("SelectionForeColor", "SelectionBackColor"):
            self.assertRegex(self.config.find(f"Editor/{name}").get("use"), BOOL)

    def test_language_numbers_are_their_places(self):
        languages = self.config.find("Languages")
        self.assertEqual({child.tag for child in languages}, {"Language"})
        numbers = [language.get("number") for language in languages]
        self.assertEqual(numbers, [str(n) for n in range(len(languages))])
        self.assertEqual(languages.get("count"), str(len(languages)))
        names = [language.findtext("Name") for language in languages]
        self.assertEqual(len(set(names)), len(names))

    def test_every_language_has_its_own_file_and_every_file_a_language(self):
        listed = [element.text for element in self.config.iter("SyntaxFile")]
        self.assertEqual(sorted(listed), sorted(path.name for path in SYNTAX.iterdir()))

    def test_numbers_with_special_places(self):
        names = [element.text for element in self.config.find("Languages").iter("Name")]
        self.assertEqual([names[0], names[1], names[11]], ["Default", "Text", "Messages"])
        for name in ("Default", "Text"):
            self.assertEqual(lexer_of(self.languages[name]), "NULL")
            self.assertEqual(self.languages[name].findall("Keywords"), [])

    def test_lexers_are_known(self):
        self.each(lambda root: [] if lexer_of(root) in LEXERS else [lexer_of(root)])

    def test_languages_of_one_lexer_leave_nothing_of_each_other(self):
        # A lexer that stays keeps what the next language does not set.
        siblings = [root for root in self.languages.values() if lexer_of(root) == "SQL"]
        self.assertGreater(len(siblings), 1)
        for query, key in (("Lexer/Property", "name"), ("Keywords", "set")):
            kept = {tuple(sorted(e.get(key) for e in root.findall(query))) for root in siblings}
            self.assertEqual(len(kept), 1, kept)

    def test_sections_are_found(self):
        self.each(section_faults)

    def test_keyword_sets(self):
        self.each(keyword_faults)

    def test_styles_are_readable(self):
        self.each(lambda root: style_faults(root, self.current_line))

    def test_comment_markers(self):
        self.each(comment_faults)

    def test_selected_text_is_readable(self):
        paper = hex_of(self.config.findtext("Editor/SelectionBackColor"))
        text = hex_of(self.config.findtext("Editor/SelectionForeColor"))
        self.assertGreaterEqual(contrast(text, paper), 4.5)

    def test_sql_dialects_share_the_core_of_the_language(self):
        dialects = [name for name, root in self.languages.items() if lexer_of(root) in SQL_LEXERS]
        self.assertEqual(len(dialects), 11)
        for name in dialects:
            root = self.languages[name]
            words = {word for keywords in root.iter("Keywords") for word in words_of(keywords)}
            with self.subTest(language=name):
                self.assertEqual([word for word in SHARED_SQL if word not in words], [])
                markers = root.findtext("LanguageDefines/SingleLineComment").split("|")
                self.assertEqual(markers[0].rstrip(), "--")  # MySQL wants a blank behind it
                self.assertEqual(root.findtext("LanguageDefines/BlockComment"), "/*|*/")

    def test_each_dialect_has_the_words_that_its_documentation_lists(self):
        dialects = {path.stem: listed_words(path) for path in WORD_LISTS.iterdir()}
        self.assertEqual(set(dialects), {name for name, root in self.languages.items()
                                         if lexer_of(root) in SQL_LEXERS})
        for name, listed in dialects.items():
            words = {word for keywords in self.languages[name].iter("Keywords")
                     for word in words_of(keywords)}
            with self.subTest(language=name):
                self.assertGreater(len(listed), 140)
                self.assertEqual(sorted(listed - words), [])

    def test_styles_differ_in_more_than_bold(self):
        self.each(look_faults)

    def test_the_readme_counts_them(self):
        dialects = sum(lexer_of(root) in SQL_LEXERS for root in self.languages.values())
        self.assertIn(f"{NUMBERS[dialects]} of them SQL dialects", README.read_text())


class TheChecksThemselves(unittest.TestCase):
    def broken(self, change):
        root = ET.parse(SYNTAX / "SQLite.xml").getroot()
        change(root)
        return root

    def test_contrast_is_that_of_the_formula(self):
        self.assertAlmostEqual(contrast("000000", "FFFFFF"), 21)
        self.assertAlmostEqual(contrast("777777", "FFFFFF"), 4.478, places=3)
        self.assertEqual(hex_of(0x0080FF), "FF8000")

    def test_a_pale_colour_is_found(self):
        def pale(root):
            root.find("StyleInformation/Style[@number='5']/Color/Foreground").text = "AAAAAA"
        self.assertEqual(style_faults(self.broken(pale), "FFFFFF"),
                         ["style 5: AAAAAA on FFFFFF", "style 5: AAAAAA on FFFFFF"])

    def test_a_missing_style_is_found(self):
        def lose(root):
            styles = root.find("StyleInformation")
            styles.remove(styles.find("Style[@number='77']"))
        self.assertEqual(len(style_faults(self.broken(lose), "FFFFFF")), 1)

    def test_a_doubled_and_an_upper_case_keyword_are_found(self):
        def spoil(root):
            words = root.find("Keywords[@set='0']").findall("Word")
            words[0].text = words[1].text
            words[2].text = "ADD"
        faults = keyword_faults(self.broken(spoil))
        self.assertEqual(len(faults), 2, faults)

    def test_a_lost_setting_is_found(self):
        def lose(root):
            root.find("View").remove(root.find("View/TabWidth"))
            root.remove(root.find("Margins"))
        self.assertEqual(section_faults(self.broken(lose)),
                         ["View/TabWidth is ''", "no section Margins"])

    def test_a_third_comment_marker_is_found(self):
        def spoil(root):
            root.find("LanguageDefines/SingleLineComment").text = "--|//|#"
        self.assertEqual(len(comment_faults(self.broken(spoil))), 1)

    def test_block_comments_that_are_not_taken_out_are_found(self):
        def spoil(root):
            defines = root.find("LanguageDefines")
            defines.remove(defines.find("SingleLineComment"))
            defines.find("BlockComment").text = "<!--|-->"
        self.assertEqual(len(comment_faults(self.broken(spoil))), 2)

    def test_styles_of_one_colour_are_found(self):
        def spoil(root):
            styles = root.find("StyleInformation")
            for number, bold in (("16", "0"), ("21", "1")):
                style = styles.find(f"Style[@number='{number}']")
                style.find("Color/Foreground").text = "123456"
                style.find("Font/Bold").text = bold
        self.assertEqual(look_faults(self.broken(spoil)), ["Data type and Setting or pragma"])


if __name__ == "__main__":
    sys.exit(unittest.main())
