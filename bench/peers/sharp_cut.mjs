// The job with sharp and its defaults: node sharp_cut.mjs LIGHT [DARK] FOLDER. The picture is
// decoded once; the twelve files are encoded as sharp's own thread pool will have it.
import { createRequire } from "node:module";

// sharp is installed in the build folder, not beside this file.
const sharp = createRequire(`${process.env.SHARP_FOLDER}/`)("sharp");

const [small, left, top, acrossStep, downStep] = [474, 83, 240, 540, 588];
const [wide, high] = [acrossStep + small, downStep + small];
const slices = [];
["top", "mid", "bottom"].forEach((row, index) => {
  const y = top + index * downStep;
  slices.push([`${row}LeftSmall`, left, y, small, small]);
  slices.push([`${row}RightSmall`, left + acrossStep, y, small, small]);
  slices.push([`${row}Medium`, left, y, wide, small]);
});
slices.push(["topLarge", left, top, wide, high]);
slices.push(["bottomLarge", left, top + downStep, wide, high]);

const paths = process.argv.slice(2, -1);
const folder = process.argv.at(-1);
if (paths.length < 1 || paths.length > 2) process.exit(2);

for (const [index, path] of paths.entries()) {
  const { data, info } = await sharp(path).raw().toBuffer({ resolveWithObject: true });
  const raw = { width: info.width, height: info.height, channels: info.channels };
  const file = (stem) => `${folder}/0${stem}${index === 1 ? "Dark" : ""}.png`;
  await Promise.all([
    sharp(data, { raw }).png().toFile(file("original")),
    ...slices.map(([stem, x, y, width, height]) =>
      sharp(data, { raw }).extract({ left: x, top: y, width, height }).png().toFile(file(stem))),
  ]);
}
