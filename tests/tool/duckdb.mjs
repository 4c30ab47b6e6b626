// DuckDB reads the JSON lines with the columns that the tool describes, and gives each back whole.
//   node duckdb.mjs TOOL MODULES FILE...
// Exits with 77 where DuckDB's package is not to be had.
import { execFileSync, spawnSync } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { isDeepStrictEqual } from "node:util";

const [tool, modules, ...files] = process.argv.slice(2);

function load() {
    const require = createRequire(modules + "/");
    try {
        return require("@duckdb/node-api");
    } catch {
        console.log("skipped: the package @duckdb/node-api could not be installed");
        process.exit(77);
    }
}

// A column that a message lacks is null in the table.
function withoutNulls(value) {
    if (Array.isArray(value)) return value.map(withoutNulls);
    if (value === null || typeof value !== "object") return value;
    const present = Object.entries(value).filter(([, member]) => member !== null);
    return Object.fromEntries(present.map(([name, member]) => [name, withoutNulls(member)]));
}

function sameTime(line, row) {
    return line === row || (line !== undefined && line.replace("T", " ").startsWith(row));
}

const { DuckDBInstance } = load();
const folder = mkdtempSync("/tmp/tarn_duckdb_");
try {
    const lines = spawnSync(tool, ["decode", "--json", ...files], { encoding: "utf8" }).stdout;
    writeFileSync(folder + "/messages.ndjson", lines);
    const columns = execFileSync(tool, ["describe", "--schema", "duckdb"], { encoding: "utf8" });
    const connection = await (await DuckDBInstance.create()).connect();
    const reader = await connection.runAndReadAll(
        `SELECT to_json(t) FROM read_json('${folder}/messages.ndjson',
         format = 'newline_delimited', columns = ${columns}) t`);
    const rows = reader.getRows().map(([row]) => withoutNulls(JSON.parse(row)));
    const wanted = lines.trimEnd().split("\n").map((line) => withoutNulls(JSON.parse(line)));
    let wrong = rows.length === wanted.length ? 0 : 1;
    wanted.forEach((line, at) => {
        const row = rows[at] ?? {};
        const equal = sameTime(line.time, row.time) &&
            isDeepStrictEqual({ ...line, time: null }, { ...row, time: null });
        if (!equal) console.log("expected", JSON.stringify(line), "\nfound   ", JSON.stringify(row));
        wrong += equal ? 0 : 1;
    });
    console.log(`${wanted.length} lines, ${wrong} of them not given back as they were`);
    process.exitCode = wanted.length > 100 && wrong === 0 ? 0 : 1;
} finally {
    rmSync(folder, { recursive: true });
}
