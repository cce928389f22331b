"""Reads what things are to be seen in the pictures, and what colours those have."""

import re

from outlines import bounds
from pictures import lies_in, spread

GIVEN = "given"  # the thing in the colour of the whole symbol
WHOLE = (0, 0, 16, 16)


class Colours:
    """The colours by thing, and the boxes of each name as (thing, box) in their order."""

    def __init__(self, file):
        self.of, self.boxes = {}, {}
        for number, line in enumerate(file.read_text().splitlines(), 1):
            line = line.split("#")[0].strip()
            try:
                if ":" in line:
                    self.read_boxes(line)
                elif line:
                    thing, colour = (side.strip() for side in line.split("=", 1))
                    self.of[thing] = int(colour, 16)
            except (KeyError, ValueError) as error:
                raise ValueError(f"{file.name} line {number}: {error}: cannot read {line!r}") from error

    def read_boxes(self, line):
        for text in spread(line):
            names, things = text.split(":")
            boxes = []
            for words in things.split(","):
                thing, *box = words.split()
                if thing != GIVEN and thing not in self.of:
                    raise ValueError(f"{thing} has no colour")
                if len(box) not in (0, 4):
                    raise ValueError(f"{words} is no box")
                boxes.append((thing, tuple(map(float, box)) or WHOLE))
            for name in names.split():
                if name in self.boxes:
                    raise ValueError(f"{name} stands there already")
                self.boxes[name] = boxes

    def letters(self, name, outline):
        """One for each contour: a for the first colour and so on, - for the one given."""
        things = ["-" if thing == GIVEN else chr(ord("a") + list(self.of).index(thing))
                  for thing, box in self.boxes[name]]
        result = ""
        for contour in outline:
            index = next((i for i, (_, box) in enumerate(self.boxes[name])
                          if lies_in(contour, box)), None)
            if index is None:
                raise ValueError(f"{name}: the contour in {bounds([contour])} is no thing's")
            result += things[index]
        if set(result) != set(things):
            raise ValueError(f"{name}: a thing has no contour")
        return result
