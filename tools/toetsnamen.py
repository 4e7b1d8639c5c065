"""The names of tests: a test is named by a Dutch sentence.

A name is taken apart into words. One that is English refuses it, and so does a name without any word
that a Dutch sentence is made of; both lists hold only words that the other language has not.
"""
import re

ENGELS = set("""
    about above after all alone alphabetically already also although always among an and another any
    anything are asks at be because becomes before behind being below between both but by can cannot
    case change changed changes character check checked checks child choose clears close closed
    closes come comes contain contains correct could count counted counts create creates date
    default delete deletes did differ different does doing done each eats either else empty end
    ended ends enough equal equals error every everything exist existing exists expected fail failed
    fails failure false few field fields file files find finds first follow follows for found from
    full get gets give given gives go goes good has have having he held her here hidden hold holds
    how if ignored ignores inside instead into invalid it its itself keep keeps kept key keys known
    length less like line lines long make makes many may missing more most move moved moves much
    must name named names needs never new next no nobody none not nothing number numbers off often
    on only opened opens or other others our output own page pages passes person place places press
    pressed prints puts query read reading reads refused refuses remains removed removes returns
    right rows runs same saved saves second sees shall she should shown shows since some sort sorts
    starts stay stays stopped stops store stored stores such take taken takes tell tells than
    that the their them then there these they third this those through till to together told too
    true twice two under unknown unless until up use used uses valid value values very were what
    whatever when where which while who whole whose why with within without work works would write
    writes written wrong year yes yet you your zero
    """.split())
NEDERLANDS = set("""
    aan achter af alle alleen alles als ander andere anders andersom begint behoudt beide bestand
    bij blijft blijven boven breekt daar daarna dan dat de deze dit doen doet drie drukt dubbel
    dubbelklikt een eerst eerste eigen eindigen eindigt elk elkaar elke en er ergens eruit even fout
    gaan gaat geeft geen gegeven geldt genoemd getal gewoon haar heeft heel hem het hetzelfde hij
    hoofdletters hoogstens houdt hun iemand iets ja kan keert kent kiest klikt komen komt kort
    krijgt kunnen laat laatste leeg leest lege lengte liggen ligt loopt maakt maar mag maken meer
    meldingen meldt met minder moet moeten mogen na naam naar naast neemt nergens niemand niet niets
    nieuw nieuwe noemt nog nooit nul om onder ontbreekt ook oude passen past precies regel schrijft
    slaat sluit staan staat stil te tegen tellen telt terug tien toch toont tot tussen twee tweede
    tweemaal twintig uit vaker van veel verandert verder vier vijf vindt vol volgende volgt volle
    voor vooraan vooraf voorbij vorige vraagt vragen vullen vult wacht wanneer wat weer weg weigert
    weinig werkt wie wijst wint wist worden wordt ze zegt zelf zelfde zet zetten zich zien zijn zo
    zoals zonder zulke
    """.split())
WOORDEN = re.compile(r"[A-Z]+(?![a-z])|[A-Z]?[a-z]+")
TOETS = re.compile(r"^[ \t]*(?:GTEST_|TYPED_)?TEST(?:_F|_P)?\(\s*\w+,\s*(\w+)\s*\)", re.M)
PYTHON_TOETS = re.compile(r"^[ \t]*def test_(\w+)\(", re.M)


def naam_fout(naam):
    """What is wrong with the name of a test; None when nothing is."""
    woorden = [woord.lower() for woord in WOORDEN.findall(naam)]
    for woord in woorden:
        if woord in ENGELS:
            return f"{naam}: namen van toetsen zijn Nederlands ({woord})"
    if not NEDERLANDS.intersection(woorden):
        return f"{naam}: dit is geen Nederlandse zin (of vul NEDERLANDS aan in tools/toetsnamen.py)"
    return None


def fouten(code, patroon):
    """Yields (place, text) of each wrong name."""
    for m in patroon.finditer(code):
        fout = naam_fout(m[1])
        if fout:
            yield m.start(1), fout
