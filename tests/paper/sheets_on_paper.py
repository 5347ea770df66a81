#!/usr/bin/python3
"""sheets_on_paper.py ORVANE-BATCH SOURCES: what a reader of PDF finds in the sheets that --pdf and --contact-sheet give,
against the bitmaps of the same run."""
import html
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

BATCH, SOURCES = Path(sys.argv[1]), Path(sys.argv[2])
TWIPS_IN_A_PIXEL, POINTS_IN_A_PIXEL, FINER = 15, 0.75, 2  # the PDF is drawn at twice the dots of the bitmap
PAGE = (595, 842)  # points

# The mean grey of a square of ten pixels may differ by so much between bitmap and PDF, and over a whole side by so
# much, in levels of 256: letters are smoothed otherwise. A form or texts that are two pixels off are beyond it.
SQUARE, WORST_SQUARE, WORST_SIDE = 10, 45, 2.8


def output(*command):
    return subprocess.run(command, check=True, capture_output=True).stdout


def play(folder, *arguments):
    """A run in a folder of its own, which has the data; gives what it ended with."""
    folder.mkdir()
    for data in (SOURCES / "game").glob("*.txt"):
        shutil.copy(data, folder)
    return subprocess.run([BATCH, *arguments], cwd=folder, capture_output=True, text=True)


def require(condition, complaint):
    if not condition:
        sys.exit(complaint)


def squeezed(text):
    return " ".join(text.replace("\u00a0", " ").split())


class Printed:
    """A line as `printed` tells of it, in pixels."""

    def __init__(self, line):
        _, x, y, self.points, text = line.split(" ", 4)
        self.x, self.y = int(x) / TWIPS_IN_A_PIXEL, int(y) / TWIPS_IN_A_PIXEL
        self.text = squeezed(text[1:-1].replace('\\"', '"').replace("\\\\", "\\"))


def printed_on(transcript, picture):
    found = [Printed(line) for line in transcript.splitlines() if line.startswith(picture + " ")]
    return [line for line in found if line.text]


def bitmap_rows(path):
    """Rows of grey bytes, from the top."""
    data = path.read_bytes()
    start, width, height = (int.from_bytes(data[i : i + 4], "little") for i in (10, 18, 22))
    stride = (width * 3 + 3) // 4 * 4
    rows = [data[start + i * stride : start + i * stride + width * 3][1::3] for i in range(height)]
    return rows[::-1]


def corner(rows):
    """Upper left corner of the form in the middle of the page, points."""
    size = (len(rows[0]), len(rows))
    return [(PAGE[i] - size[i] * POINTS_IN_A_PIXEL) / 2 for i in (0, 1)]


def page_rows(pdf, page, rows):
    """What the PDF shows where the bitmap would lie, finer by a whole factor."""
    dpi = 96 * FINER
    data = output("pdftoppm", "-gray", "-r", str(dpi), "-f", str(page), "-l", str(page), pdf)
    header = re.match(rb"P5\s+(\d+)\s+(\d+)\s+255\s", data)
    width = int(header[1])
    left, top = (round(at * dpi / 72) for at in corner(rows))
    for y in range(len(rows) * FINER):
        start = header.end() + (top + y) * width + left
        yield data[start : start + len(rows[0]) * FINER]


def means(rows, side):
    """The mean grey of each square."""
    columns = len(rows[0]) // side
    return [
        [sum(sum(row[x * side : (x + 1) * side]) for row in rows[y : y + side]) / side**2 for x in range(columns)]
        for y in range(0, len(rows) - side + 1, side)
    ]


def require_likeness(pdf, page, bitmap):
    rows = bitmap_rows(bitmap)
    wanted, shown = means(rows, SQUARE), means(list(page_rows(pdf, page, rows)), SQUARE * FINER)
    differences = [abs(a - b) for one, other in zip(wanted, shown) for a, b in zip(one, other)]
    worst, mean = max(differences), sum(differences) / len(differences)
    print(f"{bitmap.name}: worst square {worst:.1f}, mean {mean:.2f}")
    require(worst <= WORST_SQUARE and mean <= WORST_SIDE, f"{pdf.name}, page {page} does not look like {bitmap.name}")


def require_texts(pdf, page, printed, rows):
    """Every line at its place, in one piece, and in the order of reading."""
    pages = ("-f", str(page), "-l", str(page))
    boxes = output("pdftotext", "-bbox", *pages, pdf, "-").decode()
    words = [(float(x), float(y), text) for x, y, text in re.findall(r'<word xMin="(\S+)" yMin="(\S+)" [^>]*>(.*?)</word>', boxes)]
    left, top = corner(rows)
    for line in printed:
        first = line.text.split()[0]
        near = [w for w in words if abs(w[0] - left - line.x * POINTS_IN_A_PIXEL) < 1.5 and abs(w[1] - top - line.y * POINTS_IN_A_PIXEL) < 3]
        require(any(html.unescape(text) == first for _, _, text in near), f"{pdf.name}: {line.text!r} is not at its place, but {near}")
    text = squeezed(output("pdftotext", "-layout", *pages, pdf, "-").decode())
    for line in printed:
        require(line.text in text, f"{pdf.name}: {line.text!r} is not found")
    read = sorted((line for line in printed if text.count(line.text) == 1 and len(line.text) > 5), key=lambda line: line.y)
    for one, other in zip(read, read[1:]):
        require(other.y < one.y + 12 or text.index(one.text) < text.index(other.text),
                f"{pdf.name}: {other.text!r} comes before {one.text!r}")
    return len(printed)


def require_a_reader_is_served(pdf, character, player, pages):
    info = dict(re.findall(r"^(.*?): *(.*?)$", output("pdfinfo", pdf).decode(), re.M))
    require(info["Title"] == f"Tessaly : {character}" and info.get("Author", "") == player, f"{pdf.name}: {info}")
    require(info["Pages"] == str(pages) and "(A4)" in info["Page size"] and "CreationDate" not in info, f"{pdf.name}: {info}")
    require(b"/Lang (fr)" in pdf.read_bytes(), f"{pdf.name} has no language")
    for font in output("pdffonts", pdf).decode().splitlines()[2:]:
        embedded, _, unicode = font.split()[-5:-2]
        require(embedded == unicode == "yes", f"{pdf.name}: {font}")


def example(work, name, **others):
    """An example that also tells what is printed, with other names in it."""
    script = (SOURCES / "examples" / name).read_text()
    for one, other in others.items():
        script = script.replace(one.replace("_", " "), other)
    told = work / name
    told.write_text(script.replace("click cmdSave(0)", "printed pctRecto\nprinted pctVerso\nclick cmdSave(0)"))
    return told


def sheet_is_as_its_bitmaps(work):
    for name, character, player in (("patrouille", "Anne Ravel", "Camille"), ("infiltre", "Silvio Ferran", "")):
        script = example(work, name + ".script")
        run = play(work / name, "--pdf", script)
        require(run.returncode == 0 and not run.stderr, run.stderr)
        require(run.stdout == play(work / (name + "-plain"), script).stdout, "the transcript tells of a PDF")
        saved = work / name / "Perso"
        pdf = saved / f"{character}.pdf"
        require_a_reader_is_served(pdf, character, player, 2)
        texts = 0
        for page, picture in ((1, "pctRecto"), (2, "pctVerso")):
            bitmap = saved / f"{character}_{page}.bmp"
            texts += require_texts(pdf, page, printed_on(run.stdout, picture), bitmap_rows(bitmap))
            require_likeness(pdf, page, bitmap)
        require(texts > 150, f"only {texts} texts were looked for")
        play(work / (name + "-again"), "--pdf", script)
        require(pdf.read_bytes() == (work / (name + "-again") / "Perso" / pdf.name).read_bytes(), "other bytes the second time")


def letters_of_other_fonts_are_the_same_bytes_too(work):
    script = example(work, "patrouille.script", Camille="ნინო", Anne_Ravel="Чехов ნინო (é)")
    runs = [work / str(i) for i in range(5)]
    for folder in runs:
        require(play(folder, "--pdf", script).returncode == 0, "not played")
    pdf = runs[0] / "Perso/Чехов ნინო (é).pdf"
    require_a_reader_is_served(pdf, "Чехов ნინო (é)", "ნინო", 2)
    require("Чехов ნინო (é)" in squeezed(output("pdftotext", "-layout", pdf, "-").decode()), "the name is not found")
    require(len({(folder / "Perso" / pdf.name).read_bytes() for folder in runs}) == 1, "other bytes in another run")


def table_gives_the_same_with_jobs(work):
    rows = SOURCES / "examples/recrues"
    options = ("--pdf", "--contact-sheet", "planche.pdf", "--with", rows / "recrues.csv")
    runs = [work / "alone", work / "together"]
    for folder, jobs in zip(runs, ("1", "3")):
        run = play(folder, *options, "--jobs", jobs, rows / "recrue.script")
        require(run.returncode == 0 and not run.stderr, run.stderr)
    files = [sorted(path.relative_to(folder) for path in folder.rglob("*.pdf")) for folder in runs]
    require(files[0] == files[1] and len(files[0]) == 21, f"{files}")
    for file in files[0]:
        require(len({(folder / file).read_bytes() for folder in runs}) == 1, f"{file} differs")
    sheet = runs[0] / "planche.pdf"
    require_a_reader_is_served(sheet, "planche de personnages", "", 10)
    text = squeezed(output("pdftotext", "-layout", sheet, "-").decode())
    names = [file.stem for file in files[0] if file.parent.name == "Perso"]
    require(all(name in text for name in names), f"a name of {names} is missing")


def pair_stays_where_no_pdf_can_be(work):
    folder = work / "refused"
    script = example(work, "patrouille.script")
    play(folder, script)
    pair = [(folder / "Perso" / f"Anne Ravel_{side}.bmp").read_bytes() for side in (1, 2)]
    shutil.rmtree(folder / "Perso")
    shutil.copytree(folder, work / "taken")
    (work / "taken/Perso/Anne Ravel.pdf").mkdir(parents=True)
    run = subprocess.run([BATCH, "--pdf", "--contact-sheet", "nowhere/planche.pdf", script], cwd=work / "taken",
                         capture_output=True, text=True)
    require(run.returncode == 3, f"ended with {run.returncode}")
    require("son PDF n'a pas pu l'être" in run.stderr and "La planche nowhere/planche.pdf" in run.stderr, run.stderr)
    require(pair == [(work / "taken/Perso" / f"Anne Ravel_{side}.bmp").read_bytes() for side in (1, 2)], "another pair")
    require(sorted(path.name for path in (work / "taken/Perso").iterdir()) == ["Anne Ravel.pdf", "Anne Ravel_1.bmp", "Anne Ravel_2.bmp"],
            "something stays behind")


def contact_sheet_takes_no_place_but_its_own(work):
    script = example(work, "patrouille.script")
    bytes_of_script = script.read_bytes()
    (work / "planche.pdf").mkdir()
    for number, (sheet, status) in enumerate(((work / "planche.pdf", 3), (script, 2))):
        run = play(work / str(number), "--contact-sheet", sheet, script)
        require(run.returncode == status, f"ended with {run.returncode}: {run.stderr}")
    require(script.read_bytes() == bytes_of_script, "the script was replaced")
    require(not list(work.glob(".*")), "something stays behind")


with tempfile.TemporaryDirectory() as name:
    for check in (
        sheet_is_as_its_bitmaps,
        letters_of_other_fonts_are_the_same_bytes_too,
        table_gives_the_same_with_jobs,
        pair_stays_where_no_pdf_can_be,
        contact_sheet_takes_no_place_but_its_own,
    ):
        folder = Path(name) / check.__name__
        folder.mkdir()
        check(folder)
